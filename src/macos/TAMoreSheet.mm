#import "macos/TAMoreSheet.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "macos/ActionMenus.h"
#include "macos/Labels.h"
#include "macos/StringConversion.h"
#import "macos/TASheetWindow.h"

namespace {

constexpr CGFloat sheetMargin = 20;
constexpr CGFloat columnGap = 24;
// Two columns of rows: a label, the pop-up and the record button, narrower than the settings
// window's so that the sheet stays within it.
constexpr CGFloat labelWidth = 118;
constexpr CGFloat groupWidth = 58;
constexpr CGFloat popUpWidth = 140;
constexpr CGFloat recordWidth = 82;
constexpr CGFloat rowSpacing = 8;
constexpr CGFloat columnWidth = labelWidth + popUpWidth + recordWidth + 2 * rowSpacing;
constexpr CGFloat sheetWidth = 2 * sheetMargin + 2 * columnWidth + columnGap;

NSStackView* makeStack(NSArray<NSView*>* views, NSUserInterfaceLayoutOrientation orientation,
                       CGFloat spacing) {
    NSStackView* stack = [NSStackView stackViewWithViews:views];
    stack.orientation = orientation;
    stack.spacing = spacing;
    if (orientation == NSUserInterfaceLayoutOrientationVertical) {
        stack.alignment = NSLayoutAttributeLeading;
    } else {
        stack.alignment = NSLayoutAttributeCenterY;
    }
    return stack;
}

void fixWidth(NSView* view, CGFloat width) {
    [view.widthAnchor constraintEqualToConstant:width].active = YES;
}

// A button whose title does not fit loses its end rather than widening its column.
void letGiveWay(NSButton* button) {
    button.cell.lineBreakMode = NSLineBreakByTruncatingTail;
    [button setContentCompressionResistancePriority:NSLayoutPriorityDefaultLow
                                     forOrientation:NSLayoutConstraintOrientationHorizontal];
}

}  // namespace

@implementation TAMoreSheet {
    TASheetWindow* _sheet;
    // The controls that follow the content, by their slot's tag.
    NSMutableDictionary<NSNumber*, NSPopUpButton*>* _popUps;
    NSMutableDictionary<NSNumber*, NSButton*>* _recordButtons;
    NSSlider* _topBand;
}

- (void)showOnWindow:(NSWindow*)window content:(const tactora::MoreSheetContent&)content {
    if (_sheet == nil) {
        [self build:content];
    }
    [self fill:content];
    [_sheet beginOn:window
              ended:^{
                  [self.target closeMoreGestures];
              }];
}

- (nullable NSWindow*)sheetWindow {
    return _sheet;
}

// The rows, sections and texts never change while the program runs; only what the rows show
// does, which fill: sets.
- (void)build:(const tactora::MoreSheetContent&)content {
    using tactora::macos::makeLabel;
    using tactora::macos::makeWrappingLabel;
    _sheet = [[TASheetWindow alloc] initWithContentRect:NSMakeRect(0, 0, sheetWidth, 400)
                                              styleMask:NSWindowStyleMaskTitled
                                                backing:NSBackingStoreBuffered
                                                  defer:YES];
    _sheet.releasedWhenClosed = NO;
    __weak TAMoreSheet* weakSelf = self;
    _sheet.onCancel = ^{
        [weakSelf done:nil];
    };
    _popUps = [NSMutableDictionary dictionary];
    _recordButtons = [NSMutableDictionary dictionary];

    const CGFloat width = sheetWidth - 2 * sheetMargin;
    NSTextField* title =
        makeLabel(content.title, [NSFont boldSystemFontOfSize:NSFont.systemFontSize]);
    NSTextField* intro = makeWrappingLabel(content.intro, [NSFont systemFontOfSize:11], width);
    intro.textColor = NSColor.secondaryLabelColor;
    NSStackView* stack = makeStack(
        @[ title, intro, [self makeColumns:content], [self makeDoneRow:content width:width] ],
        NSUserInterfaceLayoutOrientationVertical, 12);
    stack.translatesAutoresizingMaskIntoConstraints = NO;
    NSView* view = _sheet.contentView;
    [view addSubview:stack];
    [NSLayoutConstraint activateConstraints:@[
        [stack.leadingAnchor constraintEqualToAnchor:view.leadingAnchor constant:sheetMargin],
        [stack.trailingAnchor constraintEqualToAnchor:view.trailingAnchor constant:-sheetMargin],
        [stack.topAnchor constraintEqualToAnchor:view.topAnchor constant:sheetMargin],
        [stack.bottomAnchor constraintEqualToAnchor:view.bottomAnchor constant:-sheetMargin],
    ]];
}

// The longest section (the swipes) fills the second column; the others share the first.
- (NSView*)makeColumns:(const tactora::MoreSheetContent&)content {
    std::size_t longest = 0;
    for (std::size_t i = 0; i < content.sections.size(); ++i) {
        if (content.sections[i].rows.size() > content.sections[longest].rows.size()) {
            longest = i;
        }
    }
    NSMutableArray<NSView*>* first = [NSMutableArray array];
    NSMutableArray<NSView*>* second = [NSMutableArray array];
    for (std::size_t i = 0; i < content.sections.size(); ++i) {
        NSMutableArray<NSView*>* column = i == longest ? second : first;
        [column addObject:[self makeSection:content.sections[i] content:content]];
    }
    NSStackView* left = makeStack(first, NSUserInterfaceLayoutOrientationVertical, 16);
    NSStackView* right = makeStack(second, NSUserInterfaceLayoutOrientationVertical, 16);
    fixWidth(left, columnWidth);
    fixWidth(right, columnWidth);
    NSStackView* columns =
        makeStack(@[ left, right ], NSUserInterfaceLayoutOrientationHorizontal, columnGap);
    columns.alignment = NSLayoutAttributeTop;
    return columns;
}

- (NSView*)makeSection:(const tactora::MoreSheetSection&)section
               content:(const tactora::MoreSheetContent&)content {
    NSTextField* heading = tactora::macos::makeWrappingLabel(
        section.heading, [NSFont boldSystemFontOfSize:12], columnWidth);
    heading.textColor = NSColor.secondaryLabelColor;
    NSMutableArray<NSView*>* views = [NSMutableArray arrayWithObject:heading];
    // A section whose rows come in groups gives every row the group's column.
    const bool grouped = std::ranges::any_of(
        section.rows, [](const tactora::MoreSheetRow& row) { return row.group.has_value(); });
    for (const tactora::MoreSheetRow& row : section.rows) {
        [views addObject:[self makeRow:row grouped:grouped]];
    }
    if (section.showsTopBand) {
        [views addObject:[self makeTopBandRow:content.topBand]];
    }
    return makeStack(views, NSUserInterfaceLayoutOrientationVertical, 6);
}

- (NSView*)makeRow:(const tactora::MoreSheetRow&)row grouped:(bool)grouped {
    const auto slot = static_cast<NSInteger>(row.slot);
    NSPopUpButton* popUp = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO];
    for (const tactora::ActionMenuEntry& entry : row.actions) {
        [popUp.menu addItem:tactora::macos::makeActionItem(entry.title,
                                                           static_cast<NSInteger>(entry.action))];
    }
    tactora::macos::addActionGroups(popUp.menu, row.extraActionGroups);
    popUp.tag = slot;
    popUp.target = self;
    popUp.action = @selector(popUpChanged:);
    fixWidth(popUp, popUpWidth);
    _popUps[@(slot)] = popUp;
    NSButton* record = [NSButton buttonWithTitle:@"" target:self action:@selector(record:)];
    record.bezelStyle = NSBezelStylePush;
    record.tag = slot;
    letGiveWay(record);
    fixWidth(record, recordWidth);
    _recordButtons[@(slot)] = record;
    return makeStack(@[ [self makeRowLabel:row grouped:grouped], popUp, record ],
                     NSUserInterfaceLayoutOrientationHorizontal, rowSpacing);
}

// In a grouped section the label column holds the group (on its first row) and the row's own
// label beside it.
- (NSView*)makeRowLabel:(const tactora::MoreSheetRow&)row grouped:(bool)grouped {
    using tactora::macos::makeWrappingLabel;
    NSFont* font = [NSFont systemFontOfSize:NSFont.systemFontSize];
    if (!grouped) {
        NSTextField* label = makeWrappingLabel(row.label, font, labelWidth);
        fixWidth(label, labelWidth);
        return label;
    }
    NSTextField* group = makeWrappingLabel(row.group.value_or(""), font, groupWidth);
    fixWidth(group, groupWidth);
    constexpr CGFloat ownWidth = labelWidth - groupWidth - rowSpacing;
    NSTextField* own = makeWrappingLabel(row.label, font, ownWidth);
    fixWidth(own, ownWidth);
    return makeStack(@[ group, own ], NSUserInterfaceLayoutOrientationHorizontal, rowSpacing);
}

// The depth's label, then a slider that stops only at the content's steps.
- (NSView*)makeTopBandRow:(const tactora::MoreSheetTopBand&)band {
    NSTextField* label = tactora::macos::makeWrappingLabel(
        band.label, [NSFont systemFontOfSize:NSFont.systemFontSize], labelWidth);
    fixWidth(label, labelWidth);
    _topBand = [NSSlider sliderWithValue:band.value
                                minValue:band.smallest
                                maxValue:band.largest
                                  target:self
                                  action:@selector(topBandChanged:)];
    if (band.step > 0) {
        _topBand.numberOfTickMarks =
            static_cast<NSInteger>(std::lround((band.largest - band.smallest) / band.step)) + 1;
        _topBand.allowsTickMarkValuesOnly = YES;
    }
    // One change when the knob is let go, not one for every step it passes.
    _topBand.continuous = NO;
    fixWidth(_topBand, popUpWidth + rowSpacing + recordWidth);
    return makeStack(@[ label, _topBand ], NSUserInterfaceLayoutOrientationHorizontal, rowSpacing);
}

- (NSView*)makeDoneRow:(const tactora::MoreSheetContent&)content width:(CGFloat)width {
    NSButton* done = [NSButton buttonWithTitle:tactora::macos::toNSString(content.doneButton)
                                        target:self
                                        action:@selector(done:)];
    done.keyEquivalent = @"\r";
    NSView* spacer = [[NSView alloc] initWithFrame:NSZeroRect];
    [spacer setContentHuggingPriority:NSLayoutPriorityDefaultLow
                       forOrientation:NSLayoutConstraintOrientationHorizontal];
    NSStackView* row = makeStack(@[ spacer, done ], NSUserInterfaceLayoutOrientationHorizontal, 0);
    fixWidth(row, width);
    return row;
}

- (void)fill:(const tactora::MoreSheetContent&)content {
    for (const tactora::MoreSheetSection& section : content.sections) {
        for (const tactora::MoreSheetRow& row : section.rows) {
            [self fillRow:row];
        }
    }
    _topBand.doubleValue = content.topBand.value;
}

- (void)fillRow:(const tactora::MoreSheetRow&)row {
    using tactora::macos::toNSString;
    NSNumber* slot = @(static_cast<NSInteger>(row.slot));
    [_popUps[slot] selectItemWithTag:static_cast<NSInteger>(row.action)];
    NSButton* record = _recordButtons[slot];
    record.enabled = row.record.enabled;
    record.title = toNSString(row.record.title);
    record.toolTip = toNSString(row.record.toolTip);
}

- (void)popUpChanged:(NSPopUpButton*)sender {
    NSMenuItem* selected = sender.selectedItem;
    if (selected != nil) {
        [self.target changeMoreGesture:sender.tag action:selected.tag];
    }
}

- (void)record:(NSButton*)sender {
    [self.target recordMoreGesture:sender.tag];
}

- (void)topBandChanged:(NSSlider*)sender {
    [self.target setTopBandDepth:sender.doubleValue];
}

- (void)done:(id)sender {
    [_sheet.sheetParent endSheet:_sheet];
}

@end
