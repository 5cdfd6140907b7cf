#include "core/app/Controller.h"
#include "core/app/TouchStep.h"
#include "core/shortcuts/ShortcutRecorder.h"

namespace tactora {

void Controller::recordShortcut(std::int64_t slot) {
    beginRecording(slot);
}

void Controller::beginRecording(std::int64_t slot) {
    // A touch begun before the dialog must not complete as a tap while it is open.
    cancelPendingActions();
    releasePresses();
    resetTouch(state_.gesture, services_.judge.get(), services_.extension.get());
    state_.recording = true;
    const RecordingDialogTexts texts = ShortcutRecorder::dialogTexts();
    ShortcutRecorder recorder;
    const bool saved = services_.dialogs.runRecordingDialog(
        texts,
        [weak = weak_from_this(), &recorder](const KeyPress& press, RecordingDialog& dialog) {
            if (weak.expired()) {
                return EventDisposition::pass;
            }
            return recorder.handle(press, dialog);
        });
    if (saved && recorder.captured()) {
        profiles().setShortcut(*recorder.captured(), slot);
    }
    // Touches made while the dialog was open must not complete as a tap.
    state_.recording = false;
    resetTouch(state_.gesture, services_.judge.get(), services_.extension.get());
    refreshProfileUI();
}

}  // namespace tactora
