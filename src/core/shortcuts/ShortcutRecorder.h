#pragma once

#include <cstdint>
#include <optional>

#include "core/actions/SavedShortcut.h"
#include "core/platform/EventDisposition.h"
#include "core/platform/KeyPress.h"
#include "core/platform/RecordingDialog.h"
#include "core/platform/RecordingDialogTexts.h"

namespace tactora {

// Decides, for each key press that reaches the open recording dialog, whether it becomes the
// captured shortcut. Lives as long as one run of the dialog. Main thread only.
//
// Presses in other windows, auto-repeats and key codes of 128 or more pass on unrecorded; a
// modifier key alone is swallowed unrecorded; any other key (Return and Escape included) is
// captured, replacing an earlier capture, shown in the dialog's label, enables the save button
// and is swallowed.
class ShortcutRecorder {
  public:
    // Key codes from here up are not storable.
    static constexpr std::uint16_t firstUnstorableKey = 128;
    // The modifier keys: right Command, Command, Shift, Caps Lock, Option, Control, right
    // Shift, right Option, right Control and Function.
    static constexpr std::uint16_t firstModifierKey = 54;
    static constexpr std::uint16_t lastModifierKey = 63;

    // The texts of the dialog a shortcut is recorded in, in the user's language.
    static RecordingDialogTexts dialogTexts();

    EventDisposition handle(const KeyPress& press, RecordingDialog& dialog);

    // The latest captured shortcut; nothing until a storable key was pressed.
    const std::optional<SavedShortcut>& captured() const { return captured_; }

  private:
    std::optional<SavedShortcut> captured_;
};

}  // namespace tactora
