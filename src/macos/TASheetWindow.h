#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

// The window of a sheet on the settings window: Escape (or Command-period) runs `onCancel`, so
// that it closes the sheet as its Done button does. Main thread only.
@interface TASheetWindow : NSWindow
@property(nonatomic, copy, nullable) void (^onCancel)(void);

// Shows this sheet on `parent` unless it is already shown; `ended` runs once it has been closed.
- (void)beginOn:(NSWindow*)parent ended:(void (^)(void))ended;
@end

NS_ASSUME_NONNULL_END
