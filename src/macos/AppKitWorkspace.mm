#include "macos/AppKitWorkspace.h"

#import <AppKit/AppKit.h>

#include "macos/StringConversion.h"

namespace tactora::macos {

std::optional<std::int32_t> AppKitWorkspace::frontmostProcessID() const {
    NSRunningApplication* frontmost = NSWorkspace.sharedWorkspace.frontmostApplication;
    if (frontmost == nil) {
        return std::nullopt;
    }
    return frontmost.processIdentifier;
}

bool AppKitWorkspace::isActive() const {
    return NSApp.isActive;
}

bool AppKitWorkspace::activateOtherInstance() {
    NSString* identifier = NSBundle.mainBundle.bundleIdentifier;
    if (identifier == nil) {
        return false;
    }
    const pid_t own = NSProcessInfo.processInfo.processIdentifier;
    for (NSRunningApplication* running in
         [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier]) {
        if (running.processIdentifier != own) {
            [running activateWithOptions:NSApplicationActivateIgnoringOtherApps];
            return true;
        }
    }
    return false;
}

void AppKitWorkspace::activate() {
    [NSApp activateIgnoringOtherApps:YES];
}

void AppKitWorkspace::openURL(const std::string& url) {
    NSURL* address = [NSURL URLWithString:toNSString(url)];
    if (address != nil) {
        [NSWorkspace.sharedWorkspace openURL:address];
    }
}

void AppKitWorkspace::terminate() {
    [NSApp terminate:nil];
}

void AppKitWorkspace::observeWake(std::function<void()> handler) {
    wakeObserver_ = [NSWorkspace.sharedWorkspace.notificationCenter
        addObserverForName:NSWorkspaceDidWakeNotification
                    object:nil
                     queue:NSOperationQueue.mainQueue
                usingBlock:^(NSNotification*) {
                    handler();
                }];
}

}  // namespace tactora::macos
