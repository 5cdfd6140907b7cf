#pragma once

#import <AppKit/AppKit.h>

#include "core/platform/MoreSheetContent.h"

NS_ASSUME_NONNULL_BEGIN

// Where the More Gestures sheet sends what the user does in it; slots and actions are the tags
// of the content's rows and pop-up items.
@protocol TAMoreSheetTarget <NSObject>
- (void)changeMoreGesture:(NSInteger)slot action:(NSInteger)action;
- (void)recordMoreGesture:(NSInteger)slot;
- (void)setTopBandDepth:(double)depth;
- (void)closeMoreGestures;
@end

// The sheet of the gestures beyond the eight: two columns of sections (the region taps with the
// top band's depth, the tip taps and tap and hold; the swipes), each row a label, an action
// pop-up and a record button like the gesture rows', and a Done button. It shows what it is
// given and hands every change to its target. Main thread only.
@interface TAMoreSheet : NSObject

@property(nonatomic, weak, nullable) id<TAMoreSheetTarget> target;

// Shows the sheet on `window` with this content or, while it is shown, brings its controls up to
// date with it. Escape closes it as Done does.
- (void)showOnWindow:(NSWindow*)window content:(const tactora::MoreSheetContent&)content;

// The sheet's own window, once it has been shown.
@property(nonatomic, readonly, nullable) NSWindow* sheetWindow;

@end

NS_ASSUME_NONNULL_END
