#pragma once

#include <cstdint>

namespace tactora {

// A mouse button, numbered as the platform's mouse events number them.
enum class MouseButton : std::uint32_t {
    left = 0,
    right = 1,
    centre = 2,
};

}  // namespace tactora
