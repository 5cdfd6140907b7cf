#import "macos/TADeviceTable.h"

#include <cstddef>
#include <optional>
#include <vector>

#include "macos/Labels.h"
#include "macos/StringConversion.h"
#import "macos/TASheetWindow.h"

namespace {

constexpr CGFloat sheetWidth = 520;
constexpr CGFloat sheetMargin = 20;
constexpr CGFloat columnWidth = sheetWidth - 2 * sheetMargin;
constexpr CGFloat noteSize = 11;
// The devices' boxes and the conflicts' lines sit close, as one list each.
constexpr CGFloat listSpacing = 4;
constexpr CGFloat besideSpacing = 8;
constexpr CGFloat markerSide = 18;

NSStackView* makeStack(NSUserInterfaceLayoutOrientation orientation, CGFloat spacing) {
    NSStackView* stack = [NSStackView stackViewWithViews:@[]];
    stack.orientation = orientation;
    stack.spacing = spacing;
    stack.alignment = orientation == NSUserInterfaceLayoutOrientationVertical
                          ? NSLayoutAttributeLeading
                          : NSLayoutAttributeCenterY;
    return stack;
}

// The heading line's controls are small, so that the line is hardly taller than the heading.
void makeSmall(NSControl* control) {
    control.controlSize = NSControlSizeSmall;
    control.font = [NSFont systemFontOfSize:NSFont.smallSystemFontSize];
}

}  // namespace

@implementation TADeviceTable {
    NSMutableArray<NSButton*>* _conflictMarkers;
    NSArray<NSView*>* _mouseRows;
    NSArray<NSView*>* _trackpadRows;
    std::optional<tactora::DeviceTableContent> _content;
    TASheetWindow* _sheet;
    NSTextField* _devicesTitle;
    NSStackView* _boxes;
    NSMutableArray<NSButton*>* _deviceBoxes;
    NSTextField* _hint;
    NSStackView* _conflicts;
    NSMutableArray<NSTextField*>* _conflictLabels;
    NSMutableArray<NSButton*>* _conflictButtons;
    NSButton* _done;
}

- (instancetype)init {
    self = [super init];
    if (self != nil) {
        _openButton = [NSButton buttonWithTitle:@"" target:self action:@selector(openFrom:)];
        _openButton.bezelStyle = NSBezelStylePush;
        makeSmall(_openButton);
        _openButton.hidden = YES;
        _surfaceControl =
            [NSSegmentedControl segmentedControlWithLabels:@[ @"", @"" ]
                                              trackingMode:NSSegmentSwitchTrackingSelectOne
                                                    target:self
                                                    action:@selector(surfaceChanged:)];
        makeSmall(_surfaceControl);
        _surfaceControl.selectedSegment = 0;
        _surfaceControl.hidden = YES;
        _trackpadMenus = [NSMutableArray array];
        _trackpadRecordButtons = [NSMutableArray array];
        _conflictMarkers = [NSMutableArray array];
        _mouseRows = @[];
        _trackpadRows = @[];
        _deviceBoxes = [NSMutableArray array];
        _conflictLabels = [NSMutableArray array];
        _conflictButtons = [NSMutableArray array];
    }
    return self;
}

- (NSArray<NSButton*>*)conflictMarkers {
    return _conflictMarkers;
}

- (NSWindow*)sheetWindow {
    return _sheet;
}

- (NSArray<NSButton*>*)deviceBoxes {
    return _deviceBoxes;
}

- (NSArray<NSTextField*>*)conflictLabels {
    return _conflictLabels;
}

- (NSArray<NSButton*>*)conflictButtons {
    return _conflictButtons;
}

- (NSButton*)makeConflictMarkerForSlot:(NSInteger)slot {
    NSButton* marker = [NSButton buttonWithImage:[NSImage imageNamed:NSImageNameCaution]
                                          target:self
                                          action:@selector(openFrom:)];
    marker.bordered = NO;
    marker.imageScaling = NSImageScaleProportionallyDown;
    marker.tag = slot;
    marker.hidden = YES;
    [marker.widthAnchor constraintEqualToConstant:markerSide].active = YES;
    [marker.heightAnchor constraintEqualToConstant:markerSide].active = YES;
    [_conflictMarkers addObject:marker];
    return marker;
}

- (void)placeMouseRows:(NSArray<NSView*>*)mouseRows trackpadRows:(NSArray<NSView*>*)trackpadRows {
    _mouseRows = [mouseRows copy];
    _trackpadRows = [trackpadRows copy];
    for (NSView* row in _trackpadRows) {
        row.hidden = YES;
    }
}

- (void)show:(const tactora::DeviceTableContent&)content {
    using tactora::macos::toNSString;
    _content = content;
    _openButton.title = toNSString(content.openTitle);
    _openButton.hidden = !content.showsSurfaceChoice;
    [_surfaceControl setLabel:toNSString(content.mouseSurface) forSegment:0];
    [_surfaceControl setLabel:toNSString(content.trackpadSurface) forSegment:1];
    _surfaceControl.toolTip = toNSString(content.surfaceHelp);
    _surfaceControl.selectedSegment = content.showsTrackpadRows ? 1 : 0;
    _surfaceControl.hidden = !content.showsSurfaceChoice;
    for (const tactora::TrackpadRow& row : content.rows) {
        [self fillRow:row];
    }
    for (NSView* row in _mouseRows) {
        row.hidden = content.showsTrackpadRows;
    }
    for (NSView* row in _trackpadRows) {
        row.hidden = !content.showsTrackpadRows;
    }
    if (_sheet != nil) {
        [self fillSheet];
    }
}

- (void)fillRow:(const tactora::TrackpadRow&)row {
    using tactora::macos::toNSString;
    const auto slot = static_cast<NSUInteger>(row.slot);
    if (slot >= _trackpadMenus.count || slot >= _trackpadRecordButtons.count ||
        slot >= _conflictMarkers.count) {
        return;
    }
    [_trackpadMenus[slot] selectItemWithTag:static_cast<NSInteger>(row.action)];
    NSButton* record = _trackpadRecordButtons[slot];
    record.enabled = row.record.enabled;
    record.title = toNSString(row.record.title);
    record.toolTip = toNSString(row.record.toolTip);
    NSButton* marker = _conflictMarkers[slot];
    marker.hidden = row.conflict.empty();
    marker.toolTip = toNSString(row.conflict);
    marker.accessibilityLabel = toNSString(row.conflict);
}

// --- The sheet --------------------------------------------------------------------------------

- (void)openSheetOn:(NSWindow*)window {
    if (_sheet == nil) {
        [self buildSheet];
    }
    [self fillSheet];
    [_sheet beginOn:window
              ended:^{
              }];
}

- (void)buildSheet {
    _sheet = [[TASheetWindow alloc] initWithContentRect:NSMakeRect(0, 0, sheetWidth, 300)
                                              styleMask:NSWindowStyleMaskTitled
                                                backing:NSBackingStoreBuffered
                                                  defer:YES];
    _sheet.releasedWhenClosed = NO;
    __weak TADeviceTable* weakSelf = self;
    _sheet.onCancel = ^{
        [weakSelf done:nil];
    };
    NSStackView* column = makeStack(NSUserInterfaceLayoutOrientationVertical, 12);
    column.translatesAutoresizingMaskIntoConstraints = NO;
    _devicesTitle =
        tactora::macos::makeLabel("", [NSFont boldSystemFontOfSize:NSFont.systemFontSize]);
    _boxes = makeStack(NSUserInterfaceLayoutOrientationVertical, listSpacing);
    _hint = tactora::macos::makeWrappingLabel("", [NSFont systemFontOfSize:noteSize], columnWidth);
    _hint.textColor = NSColor.secondaryLabelColor;
    _conflicts = makeStack(NSUserInterfaceLayoutOrientationVertical, listSpacing);
    _done = [NSButton buttonWithTitle:@"" target:self action:@selector(done:)];
    _done.bezelStyle = NSBezelStylePush;
    _done.keyEquivalent = @"\r";
    NSStackView* buttons = makeStack(NSUserInterfaceLayoutOrientationHorizontal, besideSpacing);
    [buttons addView:_done inGravity:NSStackViewGravityTrailing];
    [buttons.widthAnchor constraintEqualToConstant:columnWidth].active = YES;
    for (NSView* view in @[ _devicesTitle, _boxes, _hint, _conflicts, buttons ]) {
        [column addArrangedSubview:view];
    }
    NSView* content = _sheet.contentView;
    [content addSubview:column];
    [NSLayoutConstraint activateConstraints:@[
        [column.leadingAnchor constraintEqualToAnchor:content.leadingAnchor constant:sheetMargin],
        [column.trailingAnchor constraintEqualToAnchor:content.trailingAnchor
                                              constant:-sheetMargin],
        [column.topAnchor constraintEqualToAnchor:content.topAnchor constant:sheetMargin],
        [column.bottomAnchor constraintEqualToAnchor:content.bottomAnchor constant:-sheetMargin],
    ]];
}

- (void)fillSheet {
    using tactora::macos::toNSString;
    if (!_content) {
        return;
    }
    _devicesTitle.stringValue = toNSString(_content->devicesTitle);
    [self showDevices:_content->devices];
    _hint.stringValue = toNSString(_content->hint);
    [self showConflicts:_content->conflicts];
    _done.title = toNSString(_content->doneTitle);
    // The window keeps the size it has unless told: the sheet takes the height its content
    // needs, shrinking as lines go.
    NSView* content = _sheet.contentView;
    [content layoutSubtreeIfNeeded];
    [_sheet setContentSize:content.fittingSize];
}

// Keeps the boxes there are, so that the one the user just clicked stays while it reports.
- (void)showDevices:(const std::vector<tactora::DeviceLine>&)devices {
    using tactora::macos::toNSString;
    while (_deviceBoxes.count > devices.size()) {
        NSButton* box = _deviceBoxes.lastObject;
        [_boxes removeArrangedSubview:box];
        [box removeFromSuperview];
        [_deviceBoxes removeLastObject];
    }
    while (_deviceBoxes.count < devices.size()) {
        NSButton* box = [NSButton checkboxWithTitle:@"" target:self action:@selector(boxChanged:)];
        // A device's name comes from the device: one too long for the sheet loses its end.
        box.cell.lineBreakMode = NSLineBreakByTruncatingTail;
        [box.widthAnchor constraintLessThanOrEqualToConstant:columnWidth].active = YES;
        [_boxes addArrangedSubview:box];
        [_deviceBoxes addObject:box];
    }
    for (std::size_t i = 0; i < devices.size(); ++i) {
        const tactora::DeviceLine& line = devices[i];
        NSButton* box = _deviceBoxes[i];
        box.title = toNSString(line.title);
        box.tag = static_cast<NSInteger>(line.device);
        box.state = line.checked ? NSControlStateValueOn : NSControlStateValueOff;
        box.enabled = line.enabled;
        box.toolTip = toNSString(line.toolTip);
    }
}

// Each conflict a line of its own: the sentence, and beside it the button that opens where the
// system's gesture is switched off. The lines there are keep their places, so that a button the
// user just clicked stays while it reports.
- (void)showConflicts:(const std::vector<tactora::ConflictLine>&)conflicts {
    using tactora::macos::toNSString;
    while (_conflictLabels.count > conflicts.size()) {
        NSView* line = _conflicts.arrangedSubviews.lastObject;
        [_conflicts removeArrangedSubview:line];
        [line removeFromSuperview];
        [_conflictLabels removeLastObject];
        [_conflictButtons removeLastObject];
    }
    while (_conflictLabels.count < conflicts.size()) {
        [self addConflictLine:toNSString(conflicts[_conflictLabels.count].buttonTitle)];
    }
    for (std::size_t i = 0; i < conflicts.size(); ++i) {
        _conflictLabels[i].stringValue = toNSString(conflicts[i].text);
        _conflictButtons[i].title = toNSString(conflicts[i].buttonTitle);
        _conflictButtons[i].tag = static_cast<NSInteger>(conflicts[i].tag);
    }
    // Hidden, the empty list takes no room and no spacing.
    _conflicts.hidden = conflicts.empty();
}

- (void)addConflictLine:(NSString*)buttonTitle {
    NSButton* open = [NSButton buttonWithTitle:buttonTitle
                                        target:self
                                        action:@selector(openConflict:)];
    open.bezelStyle = NSBezelStylePush;
    makeSmall(open);
    const CGFloat textWidth = columnWidth - besideSpacing - open.fittingSize.width;
    NSTextField* text =
        tactora::macos::makeWrappingLabel("", [NSFont systemFontOfSize:noteSize], textWidth);
    [_conflictLabels addObject:text];
    [_conflictButtons addObject:open];
    NSStackView* line = makeStack(NSUserInterfaceLayoutOrientationHorizontal, besideSpacing);
    [line addArrangedSubview:text];
    [line addArrangedSubview:open];
    [_conflicts addArrangedSubview:line];
}

// --- What the user does -----------------------------------------------------------------------

- (void)openFrom:(NSView*)sender {
    if (sender.window != nil) {
        [self openSheetOn:sender.window];
    }
}

- (void)done:(nullable id)sender {
    NSWindow* parent = _sheet.sheetParent;
    if (parent != nil) {
        [parent endSheet:_sheet];
    }
}

- (void)boxChanged:(NSButton*)sender {
    [self.target useDevice:static_cast<std::uint64_t>(sender.tag)
                        on:sender.state == NSControlStateValueOn ? YES : NO];
}

- (void)surfaceChanged:(NSSegmentedControl*)sender {
    [self.target chooseSurface:sender.selectedSegment];
}

- (void)trackpadChanged:(NSPopUpButton*)sender {
    NSMenuItem* selected = sender.selectedItem;
    if (selected != nil) {
        [self.target changeTrackpadGesture:sender.tag action:selected.tag];
    }
}

- (void)recordTrackpad:(NSButton*)sender {
    [self.target recordTrackpadGesture:sender.tag];
}

- (void)openConflict:(NSButton*)sender {
    [self.target openConflictSettings:sender.tag];
}

@end
