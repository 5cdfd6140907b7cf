#include "macos/ServiceManagementLoginItem.h"

#import <Foundation/Foundation.h>

#include <dlfcn.h>

// The part of the framework's app service class used here, with Apple's selectors; the class
// itself is looked up at run time.
@protocol TAAppService <NSObject>
@property(readonly) NSInteger status;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end

@protocol TAAppServiceClass <NSObject>
@property(class, readonly) id<TAAppService> mainAppService;
+ (void)openSystemSettingsLoginItems;
@end

namespace tactora::macos {

namespace {

// The framework's status values.
constexpr NSInteger notRegistered = 0;
constexpr NSInteger enabled = 1;
constexpr NSInteger requiresApproval = 2;

// Returned when the framework or its class is missing (before macOS 13).
constexpr std::int64_t unavailable = -1;

Class appServiceClass() {
    static Class loaded = []() -> Class {
        // Kept loaded for the life of the process.
        if (dlopen("/System/Library/Frameworks/ServiceManagement.framework/ServiceManagement",
                   RTLD_NOW | RTLD_LOCAL) == nullptr) {
            return nil;
        }
        return NSClassFromString(@"SMAppService");
    }();
    return loaded;
}

id<TAAppService> mainApp() {
    Class service = appServiceClass();
    if (service == nil || ![service respondsToSelector:@selector(mainAppService)]) {
        return nil;
    }
    return [(Class<TAAppServiceClass>)service mainAppService];
}

std::int64_t errorCode(NSError* error) {
    return error != nil ? static_cast<std::int64_t>(error.code) : unavailable;
}

}  // namespace

LoginItemStatus ServiceManagementLoginItem::status() const {
    id<TAAppService> service = mainApp();
    if (service == nil) {
        return LoginItemStatus::notFound;
    }
    switch (service.status) {
        case notRegistered:
            return LoginItemStatus::notRegistered;
        case enabled:
            return LoginItemStatus::enabled;
        case requiresApproval:
            return LoginItemStatus::requiresApproval;
        default:
            return LoginItemStatus::notFound;
    }
}

std::int64_t ServiceManagementLoginItem::registerItem() {
    id<TAAppService> service = mainApp();
    NSError* error = nil;
    if (service != nil && [service registerAndReturnError:&error]) {
        return 0;
    }
    return errorCode(error);
}

std::int64_t ServiceManagementLoginItem::unregisterItem() {
    id<TAAppService> service = mainApp();
    NSError* error = nil;
    if (service != nil && [service unregisterAndReturnError:&error]) {
        return 0;
    }
    return errorCode(error);
}

void ServiceManagementLoginItem::openLoginItemsSettings() {
    Class service = appServiceClass();
    if (service != nil && [service respondsToSelector:@selector(openSystemSettingsLoginItems)]) {
        [(Class<TAAppServiceClass>)service openSystemSettingsLoginItems];
    }
}

}  // namespace tactora::macos
