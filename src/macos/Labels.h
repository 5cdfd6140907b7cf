#pragma once

#import <AppKit/AppKit.h>

#include <string_view>

namespace tactora::macos {

// The width that wrapping labels wrap to: the window's content less the column's margins.
inline constexpr CGFloat columnWidth = 790 - 2 * 28;

// A non-editable, non-selectable one-line text field.
NSTextField* makeLabel(std::string_view text, NSFont* font);

// The same, wrapping to the column's width.
NSTextField* makeWrappingLabel(std::string_view text, NSFont* font);

}  // namespace tactora::macos
