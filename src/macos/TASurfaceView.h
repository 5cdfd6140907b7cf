#pragma once

#import <AppKit/AppKit.h>

#include "core/platform/SurfaceSnapshot.h"

NS_ASSUME_NONNULL_BEGIN

// The live view of the touch surface: the mouse seen from above, front at the top, a dot for
// each contact, the finger count under it and, while a gesture is highlighted, the gesture and
// the action it performed. It draws the core's latest snapshot and decides nothing. To
// VoiceOver it is one image whose label is the snapshot's accessibility text.
@interface TASurfaceView : NSView <NSAccessibilityImage>

// Replaces what is drawn; redraws only when something changed.
- (void)showSnapshot:(const tactora::SurfaceSnapshot&)snapshot;

@end

NS_ASSUME_NONNULL_END
