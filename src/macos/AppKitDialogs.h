#pragma once

#include <optional>
#include <string>

#include "core/platform/Dialogs.h"

namespace tactora::macos {

// The recording and naming dialogs, the confirmation and the message, as modal alerts.
class AppKitDialogs final : public Dialogs {
  public:
    bool runRecordingDialog(const RecordingDialogTexts& texts,
                            const RecordingKeyHandler& onKey) override;
    std::optional<std::string> runNamingDialog(const NamingDialogTexts& texts) override;
    bool runConfirmation(const ConfirmationTexts& texts) override;
    void showMessage(const MessageTexts& texts) override;
};

}  // namespace tactora::macos
