#pragma once

#include <cstdint>

#include "core/platform/EventTypes.h"
#include "core/platform/MouseButton.h"

namespace tactora {

// A synthetic mouse button event to be posted at the pointer's current position.
struct MouseButtonEvent {
    EventType type = event::leftMouseDown;
    MouseButton button = MouseButton::left;
    std::int64_t clickState = 1;  // event::clickState
    std::int64_t userData = 0;    // event::sourceUserData
    // Modifier flags the event carries (a ⌘-click); none are set when 0.
    std::uint64_t flags = 0;

    bool operator==(const MouseButtonEvent&) const = default;
};

}  // namespace tactora
