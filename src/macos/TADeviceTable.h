#pragma once

#import <AppKit/AppKit.h>

#include <cstdint>

#include "core/platform/DeviceTableContent.h"

NS_ASSUME_NONNULL_BEGIN

// Where the devices' part of the settings window sends what the user does in it; devices,
// slots, actions and conflicts are the tags of the content's lines, rows and items. The surface
// is 0 for the Magic Mouse and 1 for the trackpads.
@protocol TADeviceTableTarget <NSObject>
- (void)useDevice:(std::uint64_t)device on:(BOOL)on;
- (void)chooseSurface:(NSInteger)surface;
- (void)changeTrackpadGesture:(NSInteger)slot action:(NSInteger)action;
- (void)recordTrackpadGesture:(NSInteger)slot;
- (void)openConflictSettings:(NSInteger)tag;
@end

// The touch devices in the settings window. On the line of the gesture table's first heading,
// the button that opens the Touch Surfaces sheet and the choice of surface; in the table, under
// each of the Magic Mouse's rows, the trackpads' row for the same gesture, shown in its place
// while the content says so, with a warning sign while its gesture competes with one of the
// system's. The sheet lists the devices with their boxes, the hint and the conflicts. The window
// keeps its size whichever rows show. It shows what it is given and hands every change to its
// target. Main thread only.
@interface TADeviceTable : NSObject

@property(nonatomic, weak, nullable) id<TADeviceTableTarget> target;

// The controls the window builder places on the first heading's line; hidden until the content
// shows them.
@property(nonatomic, readonly) NSButton* openButton;
@property(nonatomic, readonly) NSSegmentedControl* surfaceControl;

// What the window builder makes for the trackpads' rows, in slot order: their pop-ups and record
// buttons, which report to trackpadChanged: and recordTrackpad:, and the warning signs that
// makeConflictMarkerForSlot: makes.
@property(nonatomic, readonly) NSMutableArray<NSPopUpButton*>* trackpadMenus;
@property(nonatomic, readonly) NSMutableArray<NSButton*>* trackpadRecordButtons;
@property(nonatomic, readonly) NSArray<NSButton*>* conflictMarkers;
- (NSButton*)makeConflictMarkerForSlot:(NSInteger)slot;
// The Magic Mouse's rows and the trackpads', in slot order, that show in place of each other.
- (void)placeMouseRows:(NSArray<NSView*>*)mouseRows trackpadRows:(NSArray<NSView*>*)trackpadRows;

// Shows this content in place of what was shown, in the sheet too while it is open.
- (void)show:(const tactora::DeviceTableContent&)content;

// Opens the sheet on `window` unless it is open.
- (void)openSheetOn:(NSWindow*)window;
- (void)trackpadChanged:(NSPopUpButton*)sender;
- (void)recordTrackpad:(NSButton*)sender;

// The sheet, nil until it first opens, and what it shows: the devices' boxes and the
// conflicts' lines and buttons, in content order.
@property(nonatomic, readonly, nullable) NSWindow* sheetWindow;
@property(nonatomic, readonly) NSArray<NSButton*>* deviceBoxes;
@property(nonatomic, readonly) NSArray<NSTextField*>* conflictLabels;
@property(nonatomic, readonly) NSArray<NSButton*>* conflictButtons;

@end

NS_ASSUME_NONNULL_END
