#include "macos/CGTapEvent.h"

namespace tactora::macos {

// The core reads and rewrites tapped events by CoreGraphics' own numbers.
static_assert(event::leftMouseDragged == kCGEventLeftMouseDragged);
static_assert(event::rightMouseDragged == kCGEventRightMouseDragged);
static_assert(event::otherMouseDragged == kCGEventOtherMouseDragged);
static_assert(event::scrollWheel == kCGEventScrollWheel);
static_assert(event::tapDisabledByTimeout == kCGEventTapDisabledByTimeout);
static_assert(event::tapDisabledByUserInput == kCGEventTapDisabledByUserInput);
static_assert(event::buttonNumber == kCGMouseEventButtonNumber);
static_assert(event::tapMask ==
              (CGEventMaskBit(kCGEventLeftMouseDown) | CGEventMaskBit(kCGEventLeftMouseUp) |
               CGEventMaskBit(kCGEventRightMouseDown) | CGEventMaskBit(kCGEventRightMouseUp) |
               CGEventMaskBit(kCGEventLeftMouseDragged) |
               CGEventMaskBit(kCGEventRightMouseDragged) | CGEventMaskBit(kCGEventScrollWheel)));

std::int64_t CGTapEvent::integerField(EventField field) const {
    return CGEventGetIntegerValueField(event_, static_cast<CGEventField>(field));
}

void CGTapEvent::setIntegerField(EventField field, std::int64_t value) {
    CGEventSetIntegerValueField(event_, static_cast<CGEventField>(field), value);
}

void CGTapEvent::setType(EventType type) {
    CGEventSetType(event_, static_cast<CGEventType>(type));
}

void CGTapEvent::setFlags(std::uint64_t flags) {
    CGEventSetFlags(event_, static_cast<CGEventFlags>(flags));
}

}  // namespace tactora::macos
