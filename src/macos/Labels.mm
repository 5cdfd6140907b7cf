#include "macos/Labels.h"

#include "macos/StringConversion.h"

namespace tactora::macos {

NSTextField* makeLabel(std::string_view text, NSFont* font) {
    NSTextField* label = [NSTextField labelWithString:toNSString(text)];
    label.font = font;
    return label;
}

NSTextField* makeWrappingLabel(std::string_view text, NSFont* font, CGFloat width) {
    NSTextField* label = makeLabel(text, font);
    wrapWithin(label, width);
    return label;
}

void wrapWithin(NSTextField* label, CGFloat width) {
    label.usesSingleLineMode = NO;
    label.cell.wraps = YES;
    label.cell.scrollable = NO;
    label.lineBreakMode = NSLineBreakByWordWrapping;
    label.maximumNumberOfLines = 0;
    // Auto Layout asks a text field for its size before it knows its width; this is the width
    // the text is wrapped to for that answer.
    label.preferredMaxLayoutWidth = width;
    [label.widthAnchor constraintLessThanOrEqualToConstant:width].active = YES;
    // Wider than its text never, narrower than its text whenever the line needs it.
    [label setContentHuggingPriority:NSLayoutPriorityDefaultHigh
                      forOrientation:NSLayoutConstraintOrientationHorizontal];
    [label setContentCompressionResistancePriority:NSLayoutPriorityDefaultLow
                                    forOrientation:NSLayoutConstraintOrientationHorizontal];
    [label setContentCompressionResistancePriority:NSLayoutPriorityRequired
                                    forOrientation:NSLayoutConstraintOrientationVertical];
}

}  // namespace tactora::macos
