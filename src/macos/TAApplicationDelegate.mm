#import "macos/TAApplicationDelegate.h"

#include "core/composition/Tactora.h"
#include "core/profiles/SurfaceKind.h"
#include "macos/LaunchEvent.h"
#include "macos/StringConversion.h"

@implementation TAApplicationDelegate {
    tactora::Tactora* _program;  // not owned
}

- (void)attachProgram:(tactora::Tactora*)program {
    _program = program;
}

// The Apple event being handled while launching finishes is the one that opened the
// application.
- (void)applicationWillFinishLaunching:(NSNotification*)notification {
    _launchedAsLoginItem = tactora::macos::launchOrigin(
                               [NSAppleEventManager sharedAppleEventManager].currentAppleEvent) ==
                           tactora::LaunchOrigin::loginItem;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    _program->controller().applicationDidFinishLaunching();
}

- (void)applicationDidBecomeActive:(NSNotification*)notification {
    _program->controller().applicationDidBecomeActive();
}

- (void)applicationDidResignActive:(NSNotification*)notification {
    _program->controller().applicationDidResignActive();
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    _program->controller().applicationWillTerminate();
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)flag {
    return _program->controller().applicationShouldHandleReopen(flag) ? YES : NO;
}

// Nothing is restored between launches; saying so keeps AppKit from warning about it.
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)application {
    return YES;
}

- (void)show {
    _program->controller().show();
}

- (void)quit {
    _program->controller().quit();
}

- (void)pause {
    _program->controller().pause();
}

- (void)recordTouches {
    _program->recorder().recordTouches();
}

- (void)toggle {
    _program->controller().toggle();
}

- (void)access {
    _program->controller().access();
}

- (void)monitor {
    _program->controller().monitor();
}

- (void)reconnect {
    _program->controller().reconnect();
}

- (void)selectProfile {
    _program->controller().selectProfile();
}

- (void)newProfile {
    _program->controller().nameProfile(tactora::NamingMode::create);
}

- (void)renameProfile {
    _program->controller().nameProfile(tactora::NamingMode::rename);
}

- (void)duplicateProfile {
    _program->controller().nameProfile(tactora::NamingMode::duplicate);
}

- (void)deleteProfile {
    _program->profileFiles().deleteProfile();
}

- (void)editApplications {
    _program->frontmost().editApplications();
}

- (void)importProfiles {
    _program->profileFiles().importProfiles();
}

- (void)exportProfiles {
    _program->profileFiles().exportProfiles();
}

- (void)addApplication:(NSString*)bundleID {
    _program->frontmost().addApplication(tactora::macos::toStdString(bundleID));
}

- (void)removeApplication:(NSString*)bundleID {
    _program->frontmost().removeApplication(tactora::macos::toStdString(bundleID));
}

- (void)closeApplications {
    _program->frontmost().closeApplications();
}

- (void)changed:(NSControl*)sender {
    _program->controller().changed(sender.tag);
}

- (void)recordShortcut:(NSControl*)sender {
    _program->controller().recordShortcut(sender.tag);
}

- (void)testDesktop {
    _program->controller().testDesktop();
}

- (void)toggleMenuBarFeedback {
    _program->feedback().toggle();
}

- (void)toggleKeepOn {
    _program->keeper().toggleKeepOn();
}

- (void)toggleLoginItem {
    _program->keeper().toggleLoginItem();
}

- (void)resetPermissions {
    _program->keeper().resetPermissions();
}

- (void)openLoginItems {
    _program->keeper().openLoginItems();
}

- (void)openMoreGestures {
    _program->moreSheet().open();
}

- (void)changeMoreGesture:(NSInteger)slot action:(NSInteger)action {
    _program->moreSheet().changed(slot, action);
}

- (void)recordMoreGesture:(NSInteger)slot {
    _program->moreSheet().recordShortcut(slot);
}

- (void)setTopBandDepth:(double)depth {
    _program->moreSheet().setTopBand(depth);
}

- (void)closeMoreGestures {
    _program->moreSheet().closed();
}

- (void)useDevice:(std::uint64_t)device on:(BOOL)on {
    _program->deviceTable().setUses(device, on == YES);
}

- (void)chooseSurface:(NSInteger)surface {
    _program->deviceTable().chooseSurface(surface == 1 ? tactora::SurfaceKind::trackpad
                                                       : tactora::SurfaceKind::mouse);
}

- (void)changeTrackpadGesture:(NSInteger)slot action:(NSInteger)action {
    _program->deviceTable().changed(slot, action);
}

- (void)recordTrackpadGesture:(NSInteger)slot {
    _program->deviceTable().recordShortcut(slot);
}

- (void)openConflictSettings:(NSInteger)tag {
    _program->deviceTable().openSettings(tag);
}

- (void)openAdvanced {
    _program->advanced().open();
}

- (void)setAdvancedOption:(NSInteger)option on:(BOOL)on {
    _program->advanced().setOption(static_cast<tactora::AdvancedOption>(option), on == YES);
}

- (void)setAdvancedField:(NSInteger)field value:(double)value {
    _program->advanced().setValue(static_cast<tactora::AdvancedField>(field), value);
}

- (void)recommendAdvanced {
    _program->advanced().recommend();
}

- (void)restoreAdvancedDefaults {
    _program->advanced().restoreDefaults();
}

- (void)closeAdvanced {
    _program->advanced().close();
}

@end
