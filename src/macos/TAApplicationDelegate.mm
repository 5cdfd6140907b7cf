#import "macos/TAApplicationDelegate.h"

#include <utility>

#include "core/app/Controller.h"
#include "macos/LaunchEvent.h"
#include "macos/StringConversion.h"

@implementation TAApplicationDelegate {
    std::shared_ptr<tactora::Controller> _controller;
}

- (void)attachController:(std::shared_ptr<tactora::Controller>)controller {
    _controller = std::move(controller);
}

// The Apple event being handled while launching finishes is the one that opened the
// application.
- (void)applicationWillFinishLaunching:(NSNotification*)notification {
    _launchedAsLoginItem = tactora::macos::launchOrigin(
                               [NSAppleEventManager sharedAppleEventManager].currentAppleEvent) ==
                           tactora::LaunchOrigin::loginItem;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    _controller->applicationDidFinishLaunching();
}

- (void)applicationDidBecomeActive:(NSNotification*)notification {
    _controller->applicationDidBecomeActive();
}

- (void)applicationDidResignActive:(NSNotification*)notification {
    _controller->applicationDidResignActive();
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    _controller->applicationWillTerminate();
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)flag {
    return _controller->applicationShouldHandleReopen(flag) ? YES : NO;
}

// Nothing is restored between launches; saying so keeps AppKit from warning about it.
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)application {
    return YES;
}

- (void)show {
    _controller->show();
}

- (void)quit {
    _controller->quit();
}

- (void)pause {
    _controller->pause();
}

- (void)recordTouches {
    _controller->recordTouches();
}

- (void)toggle {
    _controller->toggle();
}

- (void)access {
    _controller->access();
}

- (void)monitor {
    _controller->monitor();
}

- (void)reconnect {
    _controller->reconnect();
}

- (void)selectProfile {
    _controller->selectProfile();
}

- (void)newProfile {
    _controller->newProfile();
}

- (void)renameProfile {
    _controller->renameProfile();
}

- (void)duplicateProfile {
    _controller->duplicateProfile();
}

- (void)deleteProfile {
    _controller->deleteProfile();
}

- (void)editApplications {
    _controller->editApplications();
}

- (void)importProfiles {
    _controller->importProfiles();
}

- (void)exportProfiles {
    _controller->exportProfiles();
}

- (void)addApplication:(NSString*)bundleID {
    _controller->addApplication(tactora::macos::toStdString(bundleID));
}

- (void)removeApplication:(NSString*)bundleID {
    _controller->removeApplication(tactora::macos::toStdString(bundleID));
}

- (void)closeApplications {
    _controller->closeApplications();
}

- (void)changed:(NSControl*)sender {
    _controller->changed(sender.tag);
}

- (void)recordShortcut:(NSControl*)sender {
    _controller->recordShortcut(sender.tag);
}

- (void)testDesktop {
    _controller->testDesktop();
}

- (void)toggleMenuBarFeedback {
    _controller->toggleMenuBarFeedback();
}

- (void)toggleKeepOn {
    _controller->toggleKeepOn();
}

- (void)toggleLoginItem {
    _controller->toggleLoginItem();
}

- (void)resetPermissions {
    _controller->resetPermissions();
}

- (void)openLoginItems {
    _controller->openLoginItems();
}

@end
