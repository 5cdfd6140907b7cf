#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/platform/ConfirmationTexts.h"
#include "core/platform/EventDisposition.h"
#include "core/platform/KeyPress.h"
#include "core/platform/MessageTexts.h"
#include "core/platform/NamingDialogTexts.h"
#include "core/platform/RecordingDialog.h"
#include "core/platform/RecordingDialogTexts.h"

namespace tactora {

// Decides what becomes of a key-down event while the recording dialog runs, and may change the
// dialog through its second argument.
using RecordingKeyHandler = std::function<EventDisposition(const KeyPress&, RecordingDialog&)>;

// The modal dialogs. Each call runs its dialog to the end and returns its answer. Main
// thread only; other main-queue work keeps running while a dialog is open.
class Dialogs {
  public:
    virtual ~Dialogs() = default;

    // Runs the recording dialog: an alert with the message and informative texts, the save
    // button (disabled) and the cancel button, neither with a key equivalent, and the waiting
    // text in a large monospaced label. While it runs, every key-down event of the application
    // goes first to `onKey`: on EventDisposition::pass the event continues, on swallow it is
    // deleted. True when it was closed with the save button.
    virtual bool runRecordingDialog(const RecordingDialogTexts& texts,
                                    const RecordingKeyHandler& onKey) = 0;

    // Runs the naming dialog: an alert with the two texts, the save and cancel buttons, and a
    // text field holding the initial text, first responder. The field's text, untouched, when
    // it was closed with the save button; nothing otherwise.
    virtual std::optional<std::string> runNamingDialog(const NamingDialogTexts& texts) = 0;

    // Asks to confirm a destructive step: a warning alert whose confirming button is marked
    // destructive. True only when it was closed with that button.
    virtual bool runConfirmation(const ConfirmationTexts& texts) = 0;

    // Shows a message with a single button that closes it.
    virtual void showMessage(const MessageTexts& texts) = 0;
};

}  // namespace tactora
