#include "core/app/ButtonRewrite.h"

#include <cstdint>
#include <optional>

#include "core/actions/ActionCatalogue.h"
#include "core/actions/MouseEventType.h"

namespace tactora {

void rewriteButton(TapEvent& event, MouseButton button, bool down, bool drag) {
    const MouseMotion motion = drag   ? MouseMotion::drag
                               : down ? MouseMotion::down
                                      : MouseMotion::up;
    event.setType(mouseEventType(button, motion));
    event.setIntegerField(event::buttonNumber, static_cast<std::int64_t>(button));
}

void rewritePress(TapEvent& event, const Press& press, bool down, bool drag) {
    rewriteButton(event, *press.button, down, drag);
    if (const std::optional<std::uint64_t> flags = catalogue::pressFlags(press.action)) {
        event.setFlags(*flags);
    }
}

bool isPhysicalDown(EventType type) {
    return type == event::leftMouseDown || type == event::rightMouseDown;
}

bool isPhysicalUp(EventType type) {
    return type == event::leftMouseUp || type == event::rightMouseUp;
}

bool isPhysicalDrag(EventType type) {
    return type == event::leftMouseDragged || type == event::rightMouseDragged;
}

}  // namespace tactora
