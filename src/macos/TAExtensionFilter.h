#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

// An open or save panel's delegate that enables only files with one extension (compared without
// regard to case), and folders to look into. Main thread only.
@interface TAExtensionFilter : NSObject <NSOpenSavePanelDelegate>

- (instancetype)initWithExtension:(NSString*)extension NS_DESIGNATED_INITIALIZER;
- (instancetype)init NS_UNAVAILABLE;

@end

NS_ASSUME_NONNULL_END
