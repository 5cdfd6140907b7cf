#pragma once

#import <AppKit/AppKit.h>

#include <memory>

#import "macos/TAApplicationsSheet.h"

namespace tactora {
class Controller;
}

NS_ASSUME_NONNULL_BEGIN

// The application's delegate and the target of every menu item and control: it hands each call
// to the controller unchanged. The action selectors are the controller's operation names.
@interface TAApplicationDelegate : NSObject <NSApplicationDelegate, TAApplicationsSheetTarget>

- (void)attachController:(std::shared_ptr<tactora::Controller>)controller;

// Whether the system opened the application as a login item, as the open-application Apple
// event of this launch said; known from applicationWillFinishLaunching: on.
@property(nonatomic, readonly) BOOL launchedAsLoginItem;

- (void)show;
- (void)quit;
- (void)pause;
- (void)recordTouches;
- (void)toggle;
- (void)access;
- (void)monitor;
- (void)reconnect;
- (void)selectProfile;
- (void)newProfile;
- (void)renameProfile;
- (void)duplicateProfile;
- (void)deleteProfile;
- (void)editApplications;
- (void)importProfiles;
- (void)exportProfiles;
- (void)changed:(NSControl*)sender;
- (void)recordShortcut:(NSControl*)sender;
- (void)testDesktop;
- (void)toggleMenuBarFeedback;
- (void)toggleKeepOn;
- (void)toggleLoginItem;
- (void)resetPermissions;
- (void)openLoginItems;

@end

NS_ASSUME_NONNULL_END
