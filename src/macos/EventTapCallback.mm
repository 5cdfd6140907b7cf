#include "macos/EventTapCallback.h"

#include "core/app/ApplicationController.h"
#include "core/app/Controller.h"
#include "core/support/Fatal.h"
#include "macos/CGTapEvent.h"

namespace tactora::macos {

CGEventRef _Nullable forwardTapEvent(CGEventTapProxy _Nullable /*proxy*/, CGEventType type,
                                     CGEventRef _Nonnull event, void* _Nullable /*userInfo*/) {
    Controller* controller = applicationController();
    if (controller == nullptr) {
        fatalError("The event tap has no controller");
    }
    CGTapEvent examined(event);
    const EventDisposition disposition = controller->handle(static_cast<EventType>(type), examined);
    return disposition == EventDisposition::swallow ? nullptr : event;
}

}  // namespace tactora::macos
