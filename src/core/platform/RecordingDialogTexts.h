#pragma once

#include <string>

namespace tactora {

// The texts of the shortcut recording dialog.
struct RecordingDialogTexts {
    std::string message;      // the dialog's title line
    std::string informative;  // the help text under it
    std::string saveButton;   // first button, disabled until a key is recorded
    std::string cancelButton;
    std::string waiting;  // the large label's text before any key

    bool operator==(const RecordingDialogTexts&) const = default;
};

}  // namespace tactora
