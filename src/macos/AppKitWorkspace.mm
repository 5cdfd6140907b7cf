#include "macos/AppKitWorkspace.h"

#import <AppKit/AppKit.h>

#include "macos/StringConversion.h"

namespace tactora::macos {

namespace {

// The copies of this application reach each other by a distributed notification named after
// their bundle identifier, whose object is the process id of the copy that is to answer.
NSString* _Nullable showRequestName() {
    NSString* identifier = NSBundle.mainBundle.bundleIdentifier;
    return identifier == nil ? nil : [identifier stringByAppendingString:@".show"];
}

NSString* processText(std::int32_t processID) {
    return [NSString stringWithFormat:@"%d", processID];
}

}  // namespace

AppKitWorkspace::~AppKitWorkspace() {
    if (wakeObserver_ != nil) {
        [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:wakeObserver_];
    }
    if (showObserver_ != nil) {
        [NSDistributedNotificationCenter.defaultCenter removeObserver:showObserver_];
    }
    if (activationObserver_ != nil) {
        [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:activationObserver_];
    }
}

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
    NSRunningApplication* running =
        [NSRunningApplication runningApplicationWithProcessIdentifier:processID];
    // That copy quit after it was listed: there is nothing left to bring forward.
    if (running == nil || running.terminated) {
        return;
    }
    if (@available(macOS 14.0, *)) {
        // Activation is cooperative from macOS 14 on and ignoring other applications has no
        // effect: this copy hands its own activation over, then asks for the other's.
        [NSApp yieldActivationToApplication:running];
        if ([running activateFromApplication:NSRunningApplication.currentApplication
                                     options:NSApplicationActivateAllWindows]) {
            return;
        }
        // Refused, typically because this copy was not active itself and so had nothing to
        // yield (started from a terminal): a plain request is all that is left.
        [running activateWithOptions:NSApplicationActivateAllWindows];
    } else {
        [running activateWithOptions:NSApplicationActivateIgnoringOtherApps];
    }
}

void AppKitWorkspace::requestShow(std::int32_t processID) {
    NSString* name = showRequestName();
    if (name == nil) {
        return;
    }
    // Delivered at once even to a copy that is not active; this copy is about to end.
    [NSDistributedNotificationCenter.defaultCenter postNotificationName:name
                                                                 object:processText(processID)
                                                               userInfo:nil
                                                     deliverImmediately:YES];
}

void AppKitWorkspace::observeShowRequests(std::function<void()> handler) {
    NSString* name = showRequestName();
    if (name == nil) {
        return;
    }
    showObserver_ = [NSDistributedNotificationCenter.defaultCenter
        addObserverForName:name
                    object:processText(NSProcessInfo.processInfo.processIdentifier)
                     queue:NSOperationQueue.mainQueue
                usingBlock:^(NSNotification*) {
                    handler();
                }];
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

std::string AppKitWorkspace::frontmostBundleID() const {
    NSString* identifier = NSWorkspace.sharedWorkspace.frontmostApplication.bundleIdentifier;
    return identifier == nil ? std::string() : toStdString(identifier);
}

void AppKitWorkspace::observeFrontmostApplication(
    std::function<void(std::optional<std::int32_t>, std::string)> handler) {
    activationObserver_ = [NSWorkspace.sharedWorkspace.notificationCenter
        addObserverForName:NSWorkspaceDidActivateApplicationNotification
                    object:nil
                     queue:NSOperationQueue.mainQueue
                usingBlock:^(NSNotification* notification) {
                    id running = notification.userInfo[NSWorkspaceApplicationKey];
                    if (![running isKindOfClass:NSRunningApplication.class]) {
                        handler(std::nullopt, std::string());
                        return;
                    }
                    NSRunningApplication* application = running;
                    NSString* identifier = application.bundleIdentifier;
                    handler(application.processIdentifier,
                            identifier == nil ? std::string() : toStdString(identifier));
                }];
}

std::vector<RunningApplication> AppKitWorkspace::regularApplications() const {
    std::vector<RunningApplication> applications;
    for (NSRunningApplication* running in NSWorkspace.sharedWorkspace.runningApplications) {
        if (running.activationPolicy != NSApplicationActivationPolicyRegular ||
            running.bundleIdentifier == nil) {
            continue;
        }
        NSString* name = running.localizedName ?: running.bundleIdentifier;
        applications.push_back(
            {running.processIdentifier, toStdString(running.bundleIdentifier), toStdString(name)});
    }
    return applications;
}

std::optional<std::string> AppKitWorkspace::applicationName(const std::string& bundleID) const {
    NSString* identifier = toNSString(bundleID);
    for (NSRunningApplication* running in
         [NSRunningApplication runningApplicationsWithBundleIdentifier:identifier]) {
        if (running.localizedName != nil) {
            return toStdString(running.localizedName);
        }
    }
    NSURL* url = [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:identifier];
    if (url == nil) {
        return std::nullopt;
    }
    // The name the Finder shows, without the ".app" that it may show too.
    NSString* shown = [NSFileManager.defaultManager displayNameAtPath:url.path];
    if ([shown.pathExtension caseInsensitiveCompare:@"app"] == NSOrderedSame) {
        shown = shown.stringByDeletingPathExtension;
    }
    return toStdString(shown);
}

}  // namespace tactora::macos
