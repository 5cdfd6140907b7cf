#include "macos/CGEventPoster.h"

#import <CoreGraphics/CoreGraphics.h>

#include "bridge/TouchBridge.h"
#include "macos/CFHandle.h"

namespace tactora::macos {

void CGEventPoster::post(const MouseButtonEvent& event) {
    // A blank event carries the pointer's current position.
    const CFHandle<CGEventRef> blank(CGEventCreate(nullptr));
    if (!blank) {
        return;
    }
    const CGPoint location = CGEventGetLocation(blank.get());
    const CFHandle<CGEventRef> mouse(
        CGEventCreateMouseEvent(nullptr, static_cast<CGEventType>(event.type), location,
                                static_cast<CGMouseButton>(event.button)));
    if (!mouse) {
        return;
    }
    CGEventSetIntegerValueField(mouse.get(), kCGEventSourceUserData, event.userData);
    CGEventSetIntegerValueField(mouse.get(), kCGMouseEventClickState, event.clickState);
    CGEventPost(kCGHIDEventTap, mouse.get());
}

void CGEventPoster::post(const KeyEvent& event) {
    const CFHandle<CGEventRef> key(CGEventCreateKeyboardEvent(nullptr, event.keyCode, event.down));
    if (!key) {
        return;
    }
    CGEventSetFlags(key.get(), static_cast<CGEventFlags>(event.flags));
    CGEventSetIntegerValueField(key.get(), kCGEventSourceUserData, event.userData);
    CGEventPost(kCGHIDEventTap, key.get());
}

std::int32_t CGEventPoster::sendDockNotification(bool showDesktop) {
    return TADesktopAction(showDesktop ? 1 : 0);
}

}  // namespace tactora::macos
