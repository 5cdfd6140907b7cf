#include "macos/CGEventPoster.h"

#import <CoreGraphics/CoreGraphics.h>

#include "bridge/TouchBridge.h"
#include "core/actions/ModifierFlags.h"
#include "core/platform/EventTypes.h"
#include "core/platform/MouseButton.h"
#include "macos/CFHandle.h"

namespace tactora::macos {

// The core names events, buttons, fields and flags by CoreGraphics' own numbers.
static_assert(event::leftMouseDown == kCGEventLeftMouseDown);
static_assert(event::leftMouseUp == kCGEventLeftMouseUp);
static_assert(event::rightMouseDown == kCGEventRightMouseDown);
static_assert(event::rightMouseUp == kCGEventRightMouseUp);
static_assert(event::otherMouseDown == kCGEventOtherMouseDown);
static_assert(event::otherMouseUp == kCGEventOtherMouseUp);
static_assert(static_cast<CGMouseButton>(MouseButton::left) == kCGMouseButtonLeft);
static_assert(static_cast<CGMouseButton>(MouseButton::right) == kCGMouseButtonRight);
static_assert(static_cast<CGMouseButton>(MouseButton::centre) == kCGMouseButtonCenter);
static_assert(event::clickState == kCGMouseEventClickState);
static_assert(event::sourceUserData == kCGEventSourceUserData);
static_assert(ModifierFlags::command == kCGEventFlagMaskCommand);
static_assert(ModifierFlags::shift == kCGEventFlagMaskShift);
static_assert(ModifierFlags::control == kCGEventFlagMaskControl);
static_assert(ModifierFlags::option == kCGEventFlagMaskAlternate);
static_assert(ModifierFlags::function == kCGEventFlagMaskSecondaryFn);

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
    if (event.flags != 0) {
        CGEventSetFlags(mouse.get(), static_cast<CGEventFlags>(event.flags));
    }
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
