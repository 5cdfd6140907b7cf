#pragma once

#import <AppKit/AppKit.h>

#include "core/platform/SurfaceContact.h"
#include "core/platform/SurfaceSnapshot.h"

NS_ASSUME_NONNULL_BEGIN

// The live view of the touch surface: the mouse seen from above, front at the top, with a dot
// for each contact; beside it the finger count and, while a gesture is highlighted, the gesture
// and the action it performed. It draws the core's latest snapshot and decides nothing. To
// VoiceOver it is one image whose label is the snapshot's accessibility text, and it announces
// the snapshot's announcement. Main thread only.
@interface TASurfaceView : NSView <NSAccessibilityImage>

// Replaces what is drawn; redraws only when something changed.
- (void)showSnapshot:(const tactora::SurfaceSnapshot&)snapshot;

// Where the dot of `contact` is drawn, in the view's coordinates.
- (NSRect)dotRectForContact:(const tactora::SurfaceContact&)contact;

// The width of the texts beside the picture; a longer line wraps at word boundaries.
@property(nonatomic, readonly) CGFloat textWidth;

// How the gesture's name and the action's name are drawn; made once.
@property(class, nonatomic, readonly) NSDictionary<NSAttributedStringKey, id>* gestureAttributes;
@property(class, nonatomic, readonly) NSDictionary<NSAttributedStringKey, id>* actionAttributes;

@end

NS_ASSUME_NONNULL_END
