#import "macos/TASurfaceView.h"

#include "macos/StringConversion.h"

namespace {

// The touch surface is about 0.6 times as wide as it is long; it fills the view's width.
constexpr CGFloat surfaceAspect = 1.7;
constexpr CGFloat outlineWidth = 1.5;
constexpr CGFloat dotRadius = 4.5;
constexpr CGFloat textGap = 6;
constexpr CGFloat textSize = 11;

NSDictionary<NSAttributedStringKey, id>* textAttributes(NSFont* font, NSColor* color) {
    NSMutableParagraphStyle* paragraph = [[NSMutableParagraphStyle alloc] init];
    paragraph.alignment = NSTextAlignmentCenter;
    paragraph.lineBreakMode = NSLineBreakByWordWrapping;
    return @{
        NSFontAttributeName : font,
        NSForegroundColorAttributeName : color,
        NSParagraphStyleAttributeName : paragraph,
    };
}

}  // namespace

@implementation TASurfaceView {
    tactora::SurfaceSnapshot _snapshot;
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        self.accessibilityElement = YES;
        self.accessibilityRole = NSAccessibilityImageRole;
    }
    return self;
}

// Top-down, like the snapshot's positions and the text that runs under the surface.
- (BOOL)isFlipped {
    return YES;
}

- (void)showSnapshot:(const tactora::SurfaceSnapshot&)snapshot {
    if (snapshot == _snapshot) {
        return;
    }
    _snapshot = snapshot;
    self.needsDisplay = YES;
}

- (NSString*)accessibilityLabel {
    return tactora::macos::toNSString(_snapshot.accessibilityText);
}

- (NSRect)surfaceRect {
    const CGFloat inset = outlineWidth;
    const CGFloat width = NSWidth(self.bounds) - 2 * inset;
    return NSMakeRect(inset, inset, width, width * surfaceAspect);
}

- (void)drawRect:(NSRect)dirtyRect {
    const NSRect surface = [self surfaceRect];
    [self drawOutline:surface];
    [self drawContactsIn:surface];
    CGFloat y = NSMaxY(surface) + textGap;
    y = [self drawText:_snapshot.fingersText
                  font:[NSFont systemFontOfSize:textSize]
                 color:NSColor.secondaryLabelColor
                   atY:y];
    if (_snapshot.highlighted) {
        y = [self drawText:_snapshot.gestureText
                      font:[NSFont boldSystemFontOfSize:textSize]
                     color:NSColor.labelColor
                       atY:y + textGap];
        [self drawText:_snapshot.actionText
                  font:[NSFont systemFontOfSize:textSize]
                 color:NSColor.controlAccentColor
                   atY:y];
    }
}

- (void)drawOutline:(NSRect)surface {
    // Rounded like the mouse's shell: the corners take most of the width.
    const CGFloat radius = NSWidth(surface) * 0.45;
    NSBezierPath* outline = [NSBezierPath bezierPathWithRoundedRect:surface
                                                            xRadius:radius
                                                            yRadius:radius];
    [NSColor.quaternaryLabelColor setFill];
    [outline fill];
    NSColor* stroke =
        _snapshot.highlighted ? NSColor.controlAccentColor : NSColor.tertiaryLabelColor;
    [stroke setStroke];
    outline.lineWidth = outlineWidth;
    [outline stroke];
}

- (void)drawContactsIn:(NSRect)surface {
    [NSColor.controlAccentColor setFill];
    for (const tactora::SurfaceContact& contact : _snapshot.contacts()) {
        const CGFloat x = NSMinX(surface) + contact.left * NSWidth(surface);
        const CGFloat y = NSMinY(surface) + contact.top * NSHeight(surface);
        const NSRect dot = NSMakeRect(x - dotRadius, y - dotRadius, 2 * dotRadius, 2 * dotRadius);
        [[NSBezierPath bezierPathWithOvalInRect:dot] fill];
    }
}

// Draws `text` centred and wrapped to the view's width from `y` down; returns where it ends.
- (CGFloat)drawText:(const std::string&)text
               font:(NSFont*)font
              color:(NSColor*)color
                atY:(CGFloat)y {
    if (text.empty()) {
        return y;
    }
    NSString* string = tactora::macos::toNSString(text);
    NSDictionary<NSAttributedStringKey, id>* attributes = textAttributes(font, color);
    const NSStringDrawingOptions options =
        NSStringDrawingUsesLineFragmentOrigin | NSStringDrawingUsesFontLeading;
    const NSRect needed = [string boundingRectWithSize:NSMakeSize(NSWidth(self.bounds), CGFLOAT_MAX)
                                               options:options
                                            attributes:attributes
                                               context:nil];
    const NSRect box = NSMakeRect(0, y, NSWidth(self.bounds), ceil(NSHeight(needed)));
    [string drawWithRect:box options:options attributes:attributes context:nil];
    return NSMaxY(box);
}

@end
