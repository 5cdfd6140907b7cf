#include "core/shortcuts/ShortcutRecorder.h"

#include "core/localization/Localizer.h"
#include "core/shortcuts/ShortcutLabel.h"

namespace tactora {

namespace {

bool isModifierKey(std::uint16_t keyCode) {
    return keyCode >= ShortcutRecorder::firstModifierKey &&
           keyCode <= ShortcutRecorder::lastModifierKey;
}

}  // namespace

RecordingDialogTexts ShortcutRecorder::dialogTexts() {
    return {
        .message = L("record.title"),
        .informative = L("record.help"),
        .saveButton = L("profile.save"),
        .cancelButton = L("cancel"),
        .waiting = L("record.wait"),
    };
}

EventDisposition ShortcutRecorder::handle(const KeyPress& press, RecordingDialog& dialog) {
    if (!press.inDialogWindow || press.isRepeat || press.keyCode >= firstUnstorableKey) {
        return EventDisposition::pass;
    }
    if (isModifierKey(press.keyCode)) {
        return EventDisposition::swallow;
    }
    captured_ = SavedShortcut(press.keyCode, press.modifierFlags, shortcutLabel(press));
    dialog.setLabelText(captured_->label);
    dialog.setSaveEnabled(true);
    return EventDisposition::swallow;
}

}  // namespace tactora
