#pragma once

#include <string>

namespace tactora {

// The texts of the profile naming dialog.
struct NamingDialogTexts {
    std::string message;
    std::string informative;
    std::string saveButton;  // first button
    std::string cancelButton;
    std::string initialText;  // what the name field holds when the dialog opens

    bool operator==(const NamingDialogTexts&) const = default;
};

}  // namespace tactora
