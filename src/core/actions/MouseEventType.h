#pragma once

#include "core/platform/EventTypes.h"
#include "core/platform/MouseButton.h"

namespace tactora {

// What a mouse button event does.
enum class MouseMotion {
    down,
    up,
    drag,
};

// The event type of `button`'s down, up or drag: the left and right buttons have types of
// their own, every other button shares the "other" types.
constexpr EventType mouseEventType(MouseButton button, MouseMotion motion) {
    switch (motion) {
        case MouseMotion::down:
            return button == MouseButton::left    ? event::leftMouseDown
                   : button == MouseButton::right ? event::rightMouseDown
                                                  : event::otherMouseDown;
        case MouseMotion::up:
            return button == MouseButton::left    ? event::leftMouseUp
                   : button == MouseButton::right ? event::rightMouseUp
                                                  : event::otherMouseUp;
        case MouseMotion::drag:
            break;
    }
    return button == MouseButton::left    ? event::leftMouseDragged
           : button == MouseButton::right ? event::rightMouseDragged
                                          : event::otherMouseDragged;
}

}  // namespace tactora
