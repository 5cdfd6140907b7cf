#include "macos/Labels.h"

#include "macos/StringConversion.h"

namespace tactora::macos {

NSTextField* makeLabel(std::string_view text, NSFont* font) {
    NSTextField* label = [NSTextField labelWithString:toNSString(text)];
    label.font = font;
    return label;
}

NSTextField* makeWrappingLabel(std::string_view text, NSFont* font, CGFloat width) {
    NSTextField* label = [NSTextField wrappingLabelWithString:toNSString(text)];
    label.font = font;
    // Wrapping labels come selectable; these are plain text like the others.
    label.selectable = NO;
    label.preferredMaxLayoutWidth = width;
    return label;
}

}  // namespace tactora::macos
