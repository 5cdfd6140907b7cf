#pragma once

#import <AppKit/AppKit.h>

#include "core/platform/ApplicationsSheet.h"

NS_ASSUME_NONNULL_BEGIN

// Where the applications sheet sends the user's edits; each call names a bundle identifier.
@protocol TAApplicationsSheetTarget <NSObject>
- (void)addApplication:(NSString*)bundleID;
- (void)removeApplication:(NSString*)bundleID;
- (void)closeApplications;
@end

// The sheet that lists one profile's applications: a table of names and bundle identifiers, an
// add pull-down (running applications, then an item that chooses an application bundle with an
// open panel), a remove button for the selected row and a done button. It shows what it is
// given and hands every edit to its target. Main thread only.
@interface TAApplicationsSheet : NSObject <NSTableViewDataSource, NSTableViewDelegate>

@property(nonatomic, weak, nullable) id<TAApplicationsSheetTarget> target;

// Shows the sheet on `window` with this content or, while it is shown, replaces its content.
// Escape closes it as Done does; Delete and Forward Delete remove the selected application.
- (void)showOnWindow:(NSWindow*)window content:(const tactora::ApplicationsSheet&)content;

// The sheet's own window, once it has been shown.
@property(nonatomic, readonly, nullable) NSWindow* sheetWindow;

@end

NS_ASSUME_NONNULL_END
