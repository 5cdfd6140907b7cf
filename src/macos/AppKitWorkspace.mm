#include "macos/AppKitWorkspace.h"

#import <AppKit/AppKit.h>

#include "macos/StringConversion.h"

namespace tactora::macos {

AppKitWorkspace::~AppKitWorkspace() {
    if (wakeObserver_ != nil) {
        [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:wakeObserver_];
    }
}

std::optional<std::int32_t> AppKitWorkspace::frontmostProcessID() const {
    NSRunningApplication* frontmost = NSWorkspace.sharedWorkspace.frontmostApplication;
    if (frontmost == nil) {
        return std::nullopt;
    }
    return frontmost.processIdentifier;
}

std::optional<std::string> AppKitWorkspace::frontmostBundleIdentifier() const {
    NSString* identifier = NSWorkspace.sharedWorkspace.frontmostApplication.bundleIdentifier;
    if (identifier == nil) {
        return std::nullopt;
    }
    return toStdString(identifier);
}

bool AppKitWorkspace::isActive() const {
    return NSApp.isActive;
}

std::vector<std::int32_t> AppKitWorkspace::instanceProcessIDs() const {
    NSString* identifier = NSBundle.mainBundle.bundleIdentifier;
    if (identifier == nil) {
        return {};
    }
    std::vector<std::int32_t> processIDs;
    for (NSRunningApplication* running in
         [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier]) {
        processIDs.push_back(running.processIdentifier);
    }
    return processIDs;
}

std::int32_t AppKitWorkspace::ownProcessID() const {
    return NSProcessInfo.processInfo.processIdentifier;
}

void AppKitWorkspace::activateApplication(std::int32_t processID) {
    // Nil, and so nothing, when that application has quit in the meantime.
    NSRunningApplication* running =
        [NSRunningApplication runningApplicationWithProcessIdentifier:processID];
    if (@available(macOS 14.0, *)) {
        // Activation is cooperative from macOS 14 on: forcing it is ignored, so this copy hands
        // its own activation over instead.
        [NSApp yieldActivationToApplication:running];
        [running activateWithOptions:0];
    } else {
        [running activateWithOptions:NSApplicationActivateIgnoringOtherApps];
    }
}

void AppKitWorkspace::activate() {
    if (@available(macOS 14.0, *)) {
        [NSApp activate];
    } else {
        [NSApp activateIgnoringOtherApps:YES];
    }
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
