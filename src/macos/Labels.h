#pragma once

#import <AppKit/AppKit.h>

#include <string_view>

namespace tactora::macos {

// A non-editable, non-selectable one-line text field.
NSTextField* makeLabel(std::string_view text, NSFont* font);

// The same, wrapping to `width` points.
NSTextField* makeWrappingLabel(std::string_view text, NSFont* font, CGFloat width);

}  // namespace tactora::macos
