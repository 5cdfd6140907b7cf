#include "macos/CGTapEvent.h"

namespace tactora::macos {

std::int64_t CGTapEvent::integerField(EventField field) const {
    return CGEventGetIntegerValueField(event_, static_cast<CGEventField>(field));
}

void CGTapEvent::setIntegerField(EventField field, std::int64_t value) {
    CGEventSetIntegerValueField(event_, static_cast<CGEventField>(field), value);
}

void CGTapEvent::setType(EventType type) {
    CGEventSetType(event_, static_cast<CGEventType>(type));
}

}  // namespace tactora::macos
