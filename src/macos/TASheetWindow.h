#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

// The window of a sheet on the settings window: Escape (or Command-period) runs `onCancel`, so
// that it closes the sheet as its Done button does. Main thread only.
@interface TASheetWindow : NSWindow
@property(nonatomic, copy, nullable) void (^onCancel)(void);
@end

NS_ASSUME_NONNULL_END
