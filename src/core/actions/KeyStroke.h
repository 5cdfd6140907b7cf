#pragma once

#include <cstdint>

namespace tactora {

// A key press to post: a virtual key code with its modifier flags.
struct KeyStroke {
    std::uint16_t keyCode = 0;
    std::uint64_t flags = 0;  // in the layout of ModifierFlags

    bool operator==(const KeyStroke&) const = default;
};

}  // namespace tactora
