#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/fakes/CallLog.h"
#include "core/platform/Dialogs.h"

namespace tactora::testing {

// The open recording dialog's label and save button.
class FakeRecordingDialog final : public RecordingDialog {
  public:
    void setLabelText(const std::string& text) override { label = text; }
    void setSaveEnabled(bool enabled) override { saveEnabled = enabled; }

    std::string label;
    bool saveEnabled = false;
};

// Scripted dialogs: the recording dialog feeds `keys` to the handler and closes with the save
// button when `save`; the naming dialog answers `name`. `whileOpen` runs inside either dialog.
class FakeDialogs final : public Dialogs {
  public:
    explicit FakeDialogs(CallLog& log) : log_(log) {}

    bool runRecordingDialog(const RecordingDialogTexts& texts,
                            const RecordingKeyHandler& onKey) override {
        log_.add("dialogs.recording");
        recordingTexts = texts;
        dialog = FakeRecordingDialog{};
        dialog.label = texts.waiting;
        dispositions.clear();
        for (const KeyPress& press : keys) {
            dispositions.push_back(onKey(press, dialog));
        }
        if (whileOpen) {
            whileOpen();
        }
        return save;
    }

    std::optional<std::string> runNamingDialog(const NamingDialogTexts& texts) override {
        log_.add("dialogs.naming");
        namingTexts = texts;
        if (whileOpen) {
            whileOpen();
        }
        return name;
    }

    bool runConfirmation(const ConfirmationTexts& texts) override {
        log_.add("dialogs.confirmation");
        confirmationTexts = texts;
        if (whileOpen) {
            whileOpen();
        }
        return confirm;
    }

    void showMessage(const MessageTexts& texts) override {
        log_.add("dialogs.message");
        messages.push_back(texts);
    }

    std::vector<KeyPress> keys;
    bool save = true;
    std::optional<std::string> name;
    bool confirm = true;
    std::function<void()> whileOpen;

    std::optional<RecordingDialogTexts> recordingTexts;
    std::optional<NamingDialogTexts> namingTexts;
    std::optional<ConfirmationTexts> confirmationTexts;
    std::vector<MessageTexts> messages;
    FakeRecordingDialog dialog;
    std::vector<EventDisposition> dispositions;

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
