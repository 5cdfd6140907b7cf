#pragma once

#include <string>

namespace tactora {

// A message with one button that closes it: what happened, then why.
struct MessageTexts {
    std::string message;
    std::string informative;

    bool operator==(const MessageTexts&) const = default;
};

}  // namespace tactora
