#include "macos/SystemPermissions.h"

#import <ApplicationServices/ApplicationServices.h>
#import <Foundation/Foundation.h>

namespace tactora::macos {

bool SystemPermissions::accessibilityTrusted() const {
    return AXIsProcessTrusted() != 0;
}

bool SystemPermissions::inputMonitoringGranted() const {
    return CGPreflightListenEventAccess();
}

void SystemPermissions::requestAccessibility() {
    NSDictionary* options = @{(__bridge NSString*)kAXTrustedCheckOptionPrompt : @YES};
    AXIsProcessTrustedWithOptions((__bridge CFDictionaryRef)options);
}

void SystemPermissions::requestInputMonitoring() {
    CGRequestListenEventAccess();
}

}  // namespace tactora::macos
