#pragma once

#include <optional>
#include <string>

#include "core/platform/ConfirmationTexts.h"
#include "core/platform/Dialogs.h"
#include "core/platform/NamingDialogTexts.h"

#import <AppKit/AppKit.h>

namespace tactora::macos {

// The naming dialog and the confirmation as alerts, not yet run. The Cancel button of each
// answers Escape, in every language; the naming alert's accessory view is its text field.
NSAlert* makeNamingAlert(const NamingDialogTexts& texts);
NSAlert* makeConfirmationAlert(const ConfirmationTexts& texts);

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
