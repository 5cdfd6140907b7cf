#pragma once

#include <CoreGraphics/CoreGraphics.h>

namespace tactora::macos {

// The event tap's callback: hands every event to the application controller and deletes the
// events it swallows. The controller must exist.
CGEventRef _Nullable forwardTapEvent(CGEventTapProxy _Nullable proxy, CGEventType type,
                                     CGEventRef _Nonnull event, void* _Nullable userInfo);

}  // namespace tactora::macos
