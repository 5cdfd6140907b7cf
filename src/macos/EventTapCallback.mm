#include "macos/EventTapCallback.h"

#include "core/app/ApplicationController.h"
#include "macos/CGTapEvent.h"

namespace tactora::macos {

CGEventRef _Nullable forwardTapEvent(CGEventTapProxy _Nullable /*proxy*/, CGEventType type,
                                     CGEventRef _Nonnull event, void* _Nullable /*userInfo*/) {
    CGTapEvent examined(event);
    const EventDisposition disposition = handleTapEvent(static_cast<EventType>(type), examined);
    return disposition == EventDisposition::swallow ? nullptr : event;
}

}  // namespace tactora::macos
