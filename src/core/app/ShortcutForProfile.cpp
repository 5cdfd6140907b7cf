#include "core/app/ShortcutForProfile.h"

#include "core/profiles/Uuid.h"
#include "core/shortcuts/ShortcutRecorder.h"

namespace tactora {

std::optional<SavedShortcut> recordShortcutForProfile(ProfileSwitcher& switcher, Dialogs& dialogs) {
    switcher.dropPendingWork();
    const Uuid profile = switcher.profiles().activeID();
    const RecordingDialogTexts texts = ShortcutRecorder::dialogTexts();
    ShortcutRecorder recorder;
    const bool saved = dialogs.runRecordingDialog(
        texts, [&recorder](const KeyPress& press, RecordingDialog& dialog) {
            return recorder.handle(press, dialog);
        });
    switcher.dropPendingWork();
    if (!saved || switcher.profiles().activeID() != profile) {
        return std::nullopt;
    }
    return recorder.captured();
}

}  // namespace tactora
