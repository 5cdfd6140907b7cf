#pragma once

#include <cstdint>
#include <optional>

#include "core/actions/ActionIndex.h"

namespace tactora {

// The actions beyond the catalogue's first fifteen. In memory, in the settings window and in
// held presses they continue the catalogue's indices (extraBase onward, in this order); they are
// never stored in a profile's "actions" list, which holds the default action in their slots so
// that an older copy of the program does the system's own behaviour there.
enum class ExtraAction : std::uint8_t {
    openApplication,
    openFile,
    openAddress,
    runShortcut,
    playPause,
    nextTrack,
    previousTrack,
    volumeUp,
    volumeDown,
    mute,
    spaceLeft,
    spaceRight,
    appExpose,
    launchpad,
    notificationCenter,
    spotlight,
    lookUp,
    screenshotArea,
    commandClick,
    optionClick,
    shiftClick,
    controlClick,
};

// What an extra action needs besides itself.
enum class ActionValueKind : std::uint8_t {
    none,
    application,  // a bundle identifier
    file,         // the path of a file or folder
    address,      // a web address or other URL
    shortcut,     // the name of one of the user's Shortcuts
};

// The groups the window lists the extra actions in, each after a separator.
enum class ExtraActionGroup : std::uint8_t {
    open,
    media,
    system,
    modifierClick,
};

namespace action {
inline constexpr ActionIndex extraBase = count;
inline constexpr ActionIndex extraCount = 22;
// Every index the window offers and a gesture may hold in memory: the fifteen, then the extras.
inline constexpr ActionIndex allCount = extraBase + extraCount;

constexpr bool isExtra(ActionIndex index) {
    return index >= extraBase && index < allCount;
}

constexpr ActionIndex index(ExtraAction extra) {
    return extraBase + static_cast<ActionIndex>(extra);
}

constexpr std::optional<ExtraAction> extra(ActionIndex index) {
    if (!isExtra(index)) {
        return std::nullopt;
    }
    return static_cast<ExtraAction>(index - extraBase);
}
}  // namespace action

}  // namespace tactora
