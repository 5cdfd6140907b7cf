#pragma once

#include <cstdint>

#include "core/platform/MouseButton.h"

namespace tactora {

// A click action: which button, clicked how many times in a row.
struct ButtonClicks {
    MouseButton button = MouseButton::left;
    std::int64_t count = 1;

    bool operator==(const ButtonClicks&) const = default;
};

}  // namespace tactora
