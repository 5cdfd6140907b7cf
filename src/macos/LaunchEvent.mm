#include "macos/LaunchEvent.h"

#import <CoreServices/CoreServices.h>

namespace tactora::macos {

LaunchOrigin launchOrigin(NSAppleEventDescriptor* openEvent) {
    if (openEvent == nil || openEvent.eventClass != kCoreEventClass ||
        openEvent.eventID != kAEOpenApplication) {
        return LaunchOrigin::user;
    }
    NSAppleEventDescriptor* property = [openEvent paramDescriptorForKeyword:keyAEPropData];
    return property != nil && property.enumCodeValue == keyAELaunchedAsLogInItem
               ? LaunchOrigin::loginItem
               : LaunchOrigin::user;
}

}  // namespace tactora::macos
