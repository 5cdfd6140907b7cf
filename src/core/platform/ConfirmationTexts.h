#pragma once

#include <string>

namespace tactora {

// A question that asks the user to confirm something that cannot be undone: the confirming
// button does the destructive thing, the cancel button (which Escape chooses) does nothing.
struct ConfirmationTexts {
    std::string message;
    std::string informative;
    std::string confirmButton;
    std::string cancelButton;

    bool operator==(const ConfirmationTexts&) const = default;
};

}  // namespace tactora
