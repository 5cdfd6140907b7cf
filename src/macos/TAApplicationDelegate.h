#pragma once

#import <AppKit/AppKit.h>

#include <memory>

#import "macos/TAAdvancedSheet.h"
#import "macos/TAApplicationsSheet.h"
#import "macos/TADeviceTable.h"
#import "macos/TAMoreSheet.h"

namespace tactora {
class Tactora;
}

NS_ASSUME_NONNULL_BEGIN

// The application's delegate and the target of every menu item and control: it hands each call
// unchanged to the part of the program that owns it, the controller or one beside it. The
// action selectors are those parts' operation names.
@interface TAApplicationDelegate : NSObject <NSApplicationDelegate,
                                             TAApplicationsSheetTarget,
                                             TAAdvancedSheetTarget,
                                             TADeviceTableTarget,
                                             TAMoreSheetTarget>

// `program` is not owned; it must outlive every call the delegate receives.
- (void)attachProgram:(tactora::Tactora*)program;

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
- (void)openAdvanced;
- (void)openMoreGestures;

@end

NS_ASSUME_NONNULL_END
