#import "macos/TASurfaceView.h"

#include <algorithm>
#include <string>

#include "macos/StringConversion.h"

namespace {

// The touch surface is about 0.6 times as wide as it is long; it fills the view's height.
constexpr CGFloat surfaceAspect = 1.7;
constexpr CGFloat outlineWidth = 1.5;
// A dot's radius as a share of the surface's width: fingers resting side by side, about a sixth
// of the width apart, keep their dots apart.
constexpr CGFloat dotShare = 0.07;
constexpr CGFloat textGap = 6;
constexpr CGFloat textSize = 11;

NSDictionary<NSAttributedStringKey, id>* makeAttributes(NSFont* font, NSColor* color) {
    NSMutableParagraphStyle* paragraph = [[NSMutableParagraphStyle alloc] init];
    paragraph.alignment = NSTextAlignmentNatural;
    paragraph.lineBreakMode = NSLineBreakByWordWrapping;
    return @{
        NSFontAttributeName : font,
        NSForegroundColorAttributeName : color,
        NSParagraphStyleAttributeName : paragraph,
    };
}

NSDictionary<NSAttributedStringKey, id>* fingersAttributes() {
    static NSDictionary<NSAttributedStringKey, id>* const attributes =
        makeAttributes([NSFont systemFontOfSize:textSize], NSColor.secondaryLabelColor);
    return attributes;
}

constexpr NSStringDrawingOptions drawingOptions =
    NSStringDrawingUsesLineFragmentOrigin | NSStringDrawingUsesFontLeading;

}  // namespace

// One of the texts beside the picture, with its height at the current text width, measured
// once per change of text or width rather than on every frame.
@interface TASurfaceLine : NSObject
@property(nonatomic, readonly) NSString* string;
@property(nonatomic, readonly) CGFloat height;
- (instancetype)initWithAttributes:(NSDictionary<NSAttributedStringKey, id>*)attributes;
// Takes `text`; measures it again only when it or `width` changed.
- (void)setText:(const std::string&)text width:(CGFloat)width;
// Draws the text from `y` down, `width` wide from `x`; returns where it ends.
- (CGFloat)drawAtX:(CGFloat)x y:(CGFloat)y width:(CGFloat)width;
@end

@implementation TASurfaceLine {
    NSDictionary<NSAttributedStringKey, id>* _attributes;
    std::string _text;
    CGFloat _width;
}

- (instancetype)initWithAttributes:(NSDictionary<NSAttributedStringKey, id>*)attributes {
    self = [super init];
    if (self != nil) {
        _attributes = attributes;
        _string = @"";
    }
    return self;
}

- (void)setText:(const std::string&)text width:(CGFloat)width {
    if (text == _text && width == _width) {
        return;
    }
    if (text != _text) {
        _text = text;
        _string = tactora::macos::toNSString(text);
    }
    _width = width;
    if (_string.length == 0 || width <= 0) {
        _height = 0;
        return;
    }
    const NSRect needed = [_string boundingRectWithSize:NSMakeSize(width, CGFLOAT_MAX)
                                                options:drawingOptions
                                             attributes:_attributes
                                                context:nil];
    _height = ceil(NSHeight(needed));
}

- (CGFloat)drawAtX:(CGFloat)x y:(CGFloat)y width:(CGFloat)width {
    if (_height == 0) {
        return y;
    }
    const NSRect box = NSMakeRect(x, y, width, _height);
    [_string drawWithRect:box options:drawingOptions attributes:_attributes context:nil];
    return NSMaxY(box);
}

@end

@implementation TASurfaceView {
    tactora::SurfaceSnapshot _snapshot;
    TASurfaceLine* _fingers;
    TASurfaceLine* _gesture;
    TASurfaceLine* _action;
    TASurfaceLine* _reason;
}

+ (NSDictionary<NSAttributedStringKey, id>*)gestureAttributes {
    static NSDictionary<NSAttributedStringKey, id>* const attributes =
        makeAttributes([NSFont boldSystemFontOfSize:textSize], NSColor.labelColor);
    return attributes;
}

+ (NSDictionary<NSAttributedStringKey, id>*)actionAttributes {
    static NSDictionary<NSAttributedStringKey, id>* const attributes =
        makeAttributes([NSFont systemFontOfSize:textSize], NSColor.controlAccentColor);
    return attributes;
}

+ (NSDictionary<NSAttributedStringKey, id>*)reasonAttributes {
    static NSDictionary<NSAttributedStringKey, id>* const attributes =
        makeAttributes([NSFont systemFontOfSize:textSize], NSColor.secondaryLabelColor);
    return attributes;
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        self.accessibilityElement = YES;
        self.accessibilityRole = NSAccessibilityImageRole;
        _fingers = [[TASurfaceLine alloc] initWithAttributes:fingersAttributes()];
        _gesture = [[TASurfaceLine alloc] initWithAttributes:TASurfaceView.gestureAttributes];
        _action = [[TASurfaceLine alloc] initWithAttributes:TASurfaceView.actionAttributes];
        _reason = [[TASurfaceLine alloc] initWithAttributes:TASurfaceView.reasonAttributes];
    }
    return self;
}

// Top-down, like the snapshot's positions and the texts.
- (BOOL)isFlipped {
    return YES;
}

- (void)showSnapshot:(const tactora::SurfaceSnapshot&)snapshot {
    // Before the comparison: the same gesture twice in a row is announced twice.
    if (!snapshot.announcement.empty()) {
        [self announce:tactora::macos::toNSString(snapshot.announcement)];
    }
    if (snapshot == _snapshot) {
        return;
    }
    _snapshot = snapshot;
    [self measureTexts];
    self.needsDisplay = YES;
}

- (void)announce:(NSString*)announcement {
    id element = self.window != nil ? static_cast<id>(self.window) : static_cast<id>(NSApp);
    NSAccessibilityPostNotificationWithUserInfo(
        element, NSAccessibilityAnnouncementRequestedNotification, @{
            NSAccessibilityAnnouncementKey : announcement,
            NSAccessibilityPriorityKey : @(NSAccessibilityPriorityMedium),
        });
}

- (void)setFrameSize:(NSSize)size {
    [super setFrameSize:size];
    [self measureTexts];
}

- (void)measureTexts {
    static const std::string none;
    const CGFloat width = self.textWidth;
    const bool highlighted = _snapshot.highlighted;
    [_fingers setText:_snapshot.fingersText width:width];
    [_gesture setText:(highlighted ? _snapshot.gestureText : none) width:width];
    [_action setText:(highlighted ? _snapshot.actionText : none) width:width];
    [_reason setText:_snapshot.reasonText width:width];
}

- (NSString*)accessibilityLabel {
    return tactora::macos::toNSString(_snapshot.accessibilityText);
}

- (NSRect)surfaceRect {
    const CGFloat inset = outlineWidth;
    const CGFloat height = std::max<CGFloat>(NSHeight(self.bounds) - 2 * inset, 0);
    return NSMakeRect(inset, inset, height / surfaceAspect, height);
}

- (CGFloat)textLeft {
    return NSMaxX([self surfaceRect]) + outlineWidth + 2 * textGap;
}

- (CGFloat)textWidth {
    return std::max<CGFloat>(NSWidth(self.bounds) - [self textLeft], 0);
}

- (NSRect)dotRectForContact:(const tactora::SurfaceContact&)contact {
    const NSRect surface = [self surfaceRect];
    const CGFloat radius = dotShare * NSWidth(surface);
    const CGFloat x = NSMinX(surface) + contact.left * NSWidth(surface);
    const CGFloat y = NSMinY(surface) + contact.top * NSHeight(surface);
    return NSMakeRect(x - radius, y - radius, 2 * radius, 2 * radius);
}

- (void)drawRect:(NSRect)dirtyRect {
    const NSRect surface = [self surfaceRect];
    [self drawOutline:surface];
    [NSColor.controlAccentColor setFill];
    for (const tactora::SurfaceContact& contact : _snapshot.contacts()) {
        [[NSBezierPath bezierPathWithOvalInRect:[self dotRectForContact:contact]] fill];
    }
    const CGFloat left = [self textLeft];
    const CGFloat width = self.textWidth;
    CGFloat y = [_fingers drawAtX:left y:NSMinY(surface) width:width];
    if (_snapshot.highlighted) {
        y = [_gesture drawAtX:left y:y + textGap width:width];
        y = [_action drawAtX:left y:y width:width];
    }
    // Why the last touch came to nothing, for a moment after it did.
    if (!_snapshot.reasonText.empty()) {
        [_reason drawAtX:left y:y + textGap width:width];
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

@end
