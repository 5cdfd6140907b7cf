#pragma once

#import <AppKit/AppKit.h>

#include <string_view>

namespace tactora::macos {

// A non-editable, non-selectable one-line text field.
NSTextField* makeLabel(std::string_view text, NSFont* font);

// The same, wrapping to `width` points.
NSTextField* makeWrappingLabel(std::string_view text, NSFont* font, CGFloat width);

// Makes `label` wrap its text onto as many lines as it needs within `width` points, and never
// ask for more width than that: a long translation grows the label downwards, not sideways.
void wrapWithin(NSTextField* label, CGFloat width);

}  // namespace tactora::macos
