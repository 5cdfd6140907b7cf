#include "macos/MachPortPointerDragger.h"

#include <cstdint>

#include "core/actions/MouseEventType.h"
#include "core/app/Globals.h"
#include "core/platform/EventTypes.h"

namespace tactora::macos {

static_assert(event::mouseMoved == kCGEventMouseMoved);
static_assert(event::buttonNumber == kCGMouseEventButtonNumber);

void MachPortPointerDragger::setDragging(std::optional<MouseButton> button) {
    button_ = button;
    if (button_ && !tap_.exists() && !tap_.create(event::maskOf({event::mouseMoved}))) {
        // Without the tap (no Accessibility permission) the press still holds; the pointer
        // simply moves instead of dragging.
        return;
    }
    tap_.setEnabled(button_.has_value());
}

CGEventRef _Nullable MachPortPointerDragger::retype(CGEventTapProxy _Nullable /*proxy*/,
                                                    CGEventType type, CGEventRef _Nonnull event,
                                                    void* _Nullable dragger) {
    auto* const self = static_cast<MachPortPointerDragger*>(dragger);
    if (type == kCGEventTapDisabledByTimeout) {
        // The system switched the tap off for being slow; it belongs on while a button is held.
        self->tap_.setEnabled(self->button_.has_value());
        return event;
    }
    if (type != kCGEventMouseMoved || !self->button_) {
        return event;
    }
    const MouseButton button = *self->button_;
    CGEventSetType(event, static_cast<CGEventType>(mouseEventType(button, MouseMotion::drag)));
    CGEventSetIntegerValueField(event, kCGMouseEventButtonNumber,
                                static_cast<std::int64_t>(button));
    // Marked like every event the program makes, so that its own event tap lets it pass.
    CGEventSetIntegerValueField(event, kCGEventSourceUserData, marker);
    return event;
}

}  // namespace tactora::macos
