#include "macos/WorkspaceOpener.h"

#import <AppKit/AppKit.h>

#include <utility>

#include "macos/StringConversion.h"

namespace tactora::macos {

namespace {

NSURL* applicationURL(const std::string& bundleID) {
    return [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:toNSString(bundleID)];
}

// AppKit answers on a concurrent queue; the core hears it on the main queue.
void (^answerOnMain(std::function<void(bool)> done))(NSRunningApplication*, NSError*) {
    return ^(NSRunningApplication* /*application*/, NSError* error) {
        const bool opened = error == nil;
        dispatch_async(dispatch_get_main_queue(), ^{
            done(opened);
        });
    };
}

void answerLater(std::function<void(bool)> done, bool opened) {
    dispatch_async(dispatch_get_main_queue(), ^{
        done(opened);
    });
}

}  // namespace

bool WorkspaceOpener::hasApplication(const std::string& bundleID) const {
    return !bundleID.empty() && applicationURL(bundleID) != nil;
}

bool WorkspaceOpener::hasFile(const std::string& path) const {
    return !path.empty() && [NSFileManager.defaultManager fileExistsAtPath:toNSString(path)];
}

std::string WorkspaceOpener::applicationName(const std::string& bundleID) const {
    NSURL* url = bundleID.empty() ? nil : applicationURL(bundleID);
    if (url == nil) {
        return bundleID;
    }
    // The name the Finder shows, without the ".app" that it may show too.
    NSString* shown = [NSFileManager.defaultManager displayNameAtPath:url.path];
    if ([shown.pathExtension caseInsensitiveCompare:@"app"] == NSOrderedSame) {
        shown = shown.stringByDeletingPathExtension;
    }
    return shown.length > 0 ? toStdString(shown) : bundleID;
}

void WorkspaceOpener::openApplication(const std::string& bundleID, std::function<void(bool)> done) {
    NSURL* url = bundleID.empty() ? nil : applicationURL(bundleID);
    if (url == nil) {
        answerLater(std::move(done), false);
        return;
    }
    // A running application is brought to the front instead of being launched again.
    NSWorkspaceOpenConfiguration* configuration = [NSWorkspaceOpenConfiguration configuration];
    configuration.activates = YES;
    [NSWorkspace.sharedWorkspace openApplicationAtURL:url
                                        configuration:configuration
                                    completionHandler:answerOnMain(std::move(done))];
}

void WorkspaceOpener::openFile(const std::string& path, std::function<void(bool)> done) {
    if (path.empty()) {
        answerLater(std::move(done), false);
        return;
    }
    NSURL* url = [NSURL fileURLWithPath:toNSString(path)];
    [NSWorkspace.sharedWorkspace openURL:url
                           configuration:[NSWorkspaceOpenConfiguration configuration]
                       completionHandler:answerOnMain(std::move(done))];
}

void WorkspaceOpener::openAddress(const std::string& address, std::function<void(bool)> done) {
    NSURL* url = [NSURL URLWithString:toNSString(address)];
    if (url == nil) {
        answerLater(std::move(done), false);
        return;
    }
    [NSWorkspace.sharedWorkspace openURL:url
                           configuration:[NSWorkspaceOpenConfiguration configuration]
                       completionHandler:answerOnMain(std::move(done))];
}

}  // namespace tactora::macos
