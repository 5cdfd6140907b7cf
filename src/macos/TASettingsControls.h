#pragma once

#import <AppKit/AppKit.h>

#import "macos/TAApplicationsSheet.h"
#import "macos/TADeviceTable.h"
#import "macos/TASurfaceView.h"

NS_ASSUME_NONNULL_BEGIN

// The controls that the controller keeps up to date. The lines, the master switch and the
// profile pop-up exist from the start, before the window that shows them; the gesture rows,
// the window and the status item are added as they are built.
@interface TASettingsControls : NSObject

@property(nonatomic, readonly) NSTextField* status;
@property(nonatomic, readonly) NSTextField* permission;
@property(nonatomic, readonly) NSTextField* live;
@property(nonatomic, readonly) NSButton* enabled;
// Beside the master switch; titled when the window is built.
@property(nonatomic, readonly) NSButton* keepOn;
@property(nonatomic, readonly) NSButton* loginItem;
// Under the permission line and beside the login item's box, hidden until the controller says
// they are needed; titled when the window is built.
@property(nonatomic, readonly) NSButton* resetPermissions;
@property(nonatomic, readonly) NSButton* openLoginItems;
@property(nonatomic, readonly) NSPopUpButton* profileMenu;
// The profile actions pull-down's delete item, which exists (untitled, outside any menu) before
// the window places it, so that its enabled state can be set from the start.
@property(nonatomic, readonly) NSMenuItem* deleteProfileItem;
@property(nonatomic, readonly) TAApplicationsSheet* applicationsSheet;
// One per gesture slot, in slot order.
@property(nonatomic, readonly) NSMutableArray<NSPopUpButton*>* actionMenus;
@property(nonatomic, readonly) NSMutableArray<NSButton*>* recordButtons;
// The touch devices: the controls above the gesture table, the trackpads' rows and their sheet;
// shows nothing until the window is built.
@property(nonatomic, readonly) TADeviceTable* deviceTable;
// The live view of the touch surface, placed under the gesture rows.
@property(nonatomic, readonly) TASurfaceView* surface;
@property(nonatomic, nullable) NSWindow* window;
@property(nonatomic, nullable) NSStatusItem* statusItem;

- (instancetype)initWithEnableTitle:(NSString*)enableTitle NS_DESIGNATED_INITIALIZER;
- (instancetype)init NS_UNAVAILABLE;

@end

NS_ASSUME_NONNULL_END
