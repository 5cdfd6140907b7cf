#include "macos/CGSystemEventPoster.h"

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>
#include <IOKit/hidsystem/IOLLEvent.h>
#include <IOKit/hidsystem/ev_keymap.h>

#include "bridge/TouchBridge.h"
#include "core/moreactions/ExtraActionCatalogue.h"

namespace tactora::macos {

// The core names the media keys by the system's own key map.
namespace keys = catalogue::mediaKeys;
static_assert(keys::soundUp == NX_KEYTYPE_SOUND_UP);
static_assert(keys::soundDown == NX_KEYTYPE_SOUND_DOWN);
static_assert(keys::mute == NX_KEYTYPE_MUTE);
static_assert(keys::play == NX_KEYTYPE_PLAY);
static_assert(keys::next == NX_KEYTYPE_NEXT);
static_assert(keys::previous == NX_KEYTYPE_PREVIOUS);
static_assert(keys::auxiliaryControlButtons == NX_SUBTYPE_AUX_CONTROL_BUTTONS);

void CGSystemEventPoster::post(const SystemDefinedEvent& event) {
    NSEvent* system =
        [NSEvent otherEventWithType:NSEventTypeSystemDefined
                           location:NSZeroPoint
                      modifierFlags:static_cast<NSEventModifierFlags>(event.modifierFlags)
                          timestamp:0
                       windowNumber:0
                            context:nil
                            subtype:event.subtype
                              data1:static_cast<NSInteger>(event.data1)
                              data2:-1];
    // The event owns its CoreGraphics counterpart; nothing to release here.
    CGEventRef posted = system.CGEvent;
    if (posted == nullptr) {
        return;
    }
    CGEventSetIntegerValueField(posted, kCGEventSourceUserData, event.userData);
    CGEventPost(kCGHIDEventTap, posted);
}

std::int32_t CGSystemEventPoster::sendDockNotification(const std::string& name) {
    return TADockNotification(name.c_str());
}

}  // namespace tactora::macos
