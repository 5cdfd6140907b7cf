#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/actions/ExtraAction.h"
#include "core/actions/ExtraActionInfo.h"
#include "core/actions/KeyStroke.h"
#include "core/platform/ProcessLauncher.h"
#include "core/platform/SystemDefinedEvent.h"

// How the further actions are carried out: what each posts, sends or starts. Pure lookups.
namespace tactora::catalogue {

// The keyboard's media keys by the system's own numbers (its key map's NX_KEYTYPE values), and
// the subtype of the system-defined events that carry them.
namespace mediaKeys {
inline constexpr std::int32_t soundUp = 0;
inline constexpr std::int32_t soundDown = 1;
inline constexpr std::int32_t mute = 7;
inline constexpr std::int32_t play = 16;
inline constexpr std::int32_t next = 17;
inline constexpr std::int32_t previous = 18;
inline constexpr std::int16_t auxiliaryControlButtons = 8;
}  // namespace mediaKeys

// The key code of the keyboard's media key that an action presses (the system's NX_KEYTYPE
// numbers): play/pause, next, previous, volume up and down, mute.
std::optional<std::int32_t> mediaKey(ExtraAction action);
// One half of a media key press as the keyboard posts it: subtype 8 (auxiliary control
// buttons), the key in the upper half of data1, and 0xA for down or 0xB for up in its second
// byte, the same state in the modifier flags.
SystemDefinedEvent mediaKeyEvent(std::int32_t key, bool down);

// The system's default keyboard shortcut of an action: the Spaces, Notification Center,
// Spotlight and Look Up. Arrow keys carry the flags a real arrow key has.
std::optional<KeyStroke> systemKeyStroke(ExtraAction action);

// The Dock notification of App Exposé and Launchpad.
std::optional<std::string_view> dockNotification(ExtraAction action);

// The modifier flags of ⌘-, ⌥-, ⇧- and ⌃-click, which click the left button.
std::optional<std::uint64_t> clickFlags(ExtraAction action);

// The program an action starts: `shortcuts run NAME` with the Shortcut's name as one argument,
// or an interactive screenshot of an area to the clipboard.
std::optional<ProcessRequest> process(ExtraAction action, const std::string& value);
// Lists the user's Shortcuts, one name a line.
ProcessRequest shortcutList();

// A Shortcut runs at most this long before it is stopped and reported.
inline constexpr double shortcutTimeLimit = 60;
// Listing the Shortcuts takes at most this long.
inline constexpr double shortcutListTimeLimit = 15;

}  // namespace tactora::catalogue
