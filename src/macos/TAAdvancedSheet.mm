#import "macos/TAAdvancedSheet.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "macos/Labels.h"
#include "macos/StringConversion.h"
#import "macos/TASheetWindow.h"

namespace {

constexpr CGFloat sheetWidth = 560;
constexpr CGFloat sheetMargin = 20;
constexpr CGFloat columnWidth = sheetWidth - 2 * sheetMargin;
// A checkbox's fields sit under its title, in line with it.
constexpr CGFloat fieldIndent = 20;
constexpr CGFloat fieldWidth = 70;
constexpr CGFloat noteSize = 11;
// Room for the try area's lines, so that the sheet keeps its height as they come and go.
constexpr CGFloat tryHeight = 110;

// A group with four values (the edge bands) shows them two to a row.
std::size_t valuesPerRow(const tactora::AdvancedGroup& group) {
    return group.values.size() == 4 ? 2 : 1;
}

NSNumberFormatter* makeFormatter(int fractionDigits) {
    NSNumberFormatter* formatter = [[NSNumberFormatter alloc] init];
    formatter.numberStyle = NSNumberFormatterDecimalStyle;
    formatter.usesGroupingSeparator = NO;
    formatter.minimumFractionDigits = 0;
    formatter.maximumFractionDigits = static_cast<NSUInteger>(std::max(fractionDigits, 0));
    formatter.lenient = YES;
    return formatter;
}

}  // namespace

@implementation TAAdvancedSheet {
    TASheetWindow* _sheet;
    NSStackView* _column;
    NSTextField* _title;
    NSTextField* _explanation;
    // The groups' controls in the order of the content's groups and values.
    NSMutableArray<NSButton*>* _checkboxes;
    NSMutableArray<NSTextField*>* _headings;
    NSMutableArray<NSTextField*>* _labels;
    NSMutableArray<NSTextField*>* _fields;
    NSMutableArray<NSTextField*>* _units;
    std::size_t _groupCount;
    NSTextField* _problem;
    NSTextField* _tryTitle;
    NSStackView* _tryLines;
    std::string _tryEmpty;
    NSButton* _recommended;
    NSButton* _restore;
    NSButton* _done;
}

- (void)showOnWindow:(NSWindow*)window content:(const tactora::AdvancedSheet&)content {
    if (_sheet == nil || _groupCount != content.groups.size()) {
        [self build:content];
    }
    [self fill:content];
    [_sheet beginOn:window
              ended:^{
                  [self.target closeAdvanced];
              }];
}

- (void)build:(const tactora::AdvancedSheet&)content {
    _sheet = [[TASheetWindow alloc] initWithContentRect:NSMakeRect(0, 0, sheetWidth, 600)
                                              styleMask:NSWindowStyleMaskTitled
                                                backing:NSBackingStoreBuffered
                                                  defer:YES];
    _sheet.releasedWhenClosed = NO;
    __weak TAAdvancedSheet* weakSelf = self;
    _sheet.onCancel = ^{
        [weakSelf done:nil];
    };
    _checkboxes = [NSMutableArray array];
    _headings = [NSMutableArray array];
    _labels = [NSMutableArray array];
    _fields = [NSMutableArray array];
    _units = [NSMutableArray array];
    _column = [NSStackView stackViewWithViews:@[]];
    _column.orientation = NSUserInterfaceLayoutOrientationVertical;
    _column.alignment = NSLayoutAttributeLeading;
    _column.spacing = 8;
    _column.detachesHiddenViews = YES;
    _column.translatesAutoresizingMaskIntoConstraints = NO;

    _title = tactora::macos::makeLabel("", [NSFont boldSystemFontOfSize:NSFont.systemFontSize]);
    _explanation =
        tactora::macos::makeWrappingLabel("", [NSFont systemFontOfSize:noteSize], columnWidth);
    _explanation.textColor = NSColor.secondaryLabelColor;
    [_column addArrangedSubview:_title];
    [_column addArrangedSubview:_explanation];
    for (const tactora::AdvancedGroup& group : content.groups) {
        [self addGroup:group];
    }
    _groupCount = content.groups.size();
    _problem =
        tactora::macos::makeWrappingLabel("", [NSFont systemFontOfSize:noteSize], columnWidth);
    _problem.textColor = NSColor.systemRedColor;
    [_column addArrangedSubview:_problem];
    [self addTryArea];
    [_column addArrangedSubview:[self makeButtonRow]];

    NSView* view = _sheet.contentView;
    [view addSubview:_column];
    [NSLayoutConstraint activateConstraints:@[
        [_column.leadingAnchor constraintEqualToAnchor:view.leadingAnchor constant:sheetMargin],
        [_column.trailingAnchor constraintEqualToAnchor:view.trailingAnchor constant:-sheetMargin],
        [_column.topAnchor constraintEqualToAnchor:view.topAnchor constant:sheetMargin],
        [_column.bottomAnchor constraintEqualToAnchor:view.bottomAnchor constant:-sheetMargin],
    ]];
}

// A checkbox, or a heading, then the group's fields in a grid: label, field, unit.
- (void)addGroup:(const tactora::AdvancedGroup&)group {
    if (group.option) {
        NSButton* checkbox = [NSButton checkboxWithTitle:@""
                                                  target:self
                                                  action:@selector(optionChanged:)];
        checkbox.tag = static_cast<NSInteger>(*group.option);
        [_checkboxes addObject:checkbox];
        [_column addArrangedSubview:checkbox];
    } else if (!group.title.empty()) {
        NSTextField* heading =
            tactora::macos::makeLabel("", [NSFont boldSystemFontOfSize:NSFont.smallSystemFontSize]);
        heading.textColor = NSColor.secondaryLabelColor;
        [_headings addObject:heading];
        [_column addArrangedSubview:heading];
    }
    if (group.values.empty()) {
        return;
    }
    const std::size_t perRow = valuesPerRow(group);
    NSMutableArray<NSArray<NSView*>*>* rows = [NSMutableArray array];
    NSMutableArray<NSView*>* row = [NSMutableArray array];
    for (const tactora::AdvancedValue& value : group.values) {
        [row addObjectsFromArray:[self makeValueViews:value]];
        if (row.count == 3 * perRow) {
            [rows addObject:row];
            row = [NSMutableArray array];
        }
    }
    if (row.count > 0) {
        [rows addObject:row];
    }
    NSGridView* grid = [NSGridView gridViewWithViews:rows];
    grid.rowSpacing = 6;
    grid.columnSpacing = 6;
    for (NSInteger column = 0; column < grid.numberOfColumns; column += 3) {
        [grid columnAtIndex:column].xPlacement = NSGridCellPlacementTrailing;
    }
    NSStackView* indented = [NSStackView stackViewWithViews:@[ grid ]];
    indented.edgeInsets = NSEdgeInsetsMake(0, group.option ? fieldIndent : 0, 0, 0);
    [_column addArrangedSubview:indented];
}

- (NSArray<NSView*>*)makeValueViews:(const tactora::AdvancedValue&)value {
    NSTextField* label =
        tactora::macos::makeLabel("", [NSFont systemFontOfSize:NSFont.systemFontSize]);
    NSTextField* field = [NSTextField textFieldWithString:@""];
    field.formatter = makeFormatter(value.fractionDigits);
    field.alignment = NSTextAlignmentRight;
    field.tag = static_cast<NSInteger>(value.field);
    field.target = self;
    field.action = @selector(fieldChanged:);
    field.delegate = self;
    // Leaving the field (Tab, a click elsewhere, Done) applies it as Return does.
    field.cell.sendsActionOnEndEditing = YES;
    [field.widthAnchor constraintEqualToConstant:fieldWidth].active = YES;
    NSTextField* unit =
        tactora::macos::makeLabel("", [NSFont systemFontOfSize:NSFont.systemFontSize]);
    [_labels addObject:label];
    [_fields addObject:field];
    [_units addObject:unit];
    return @[ label, field, unit ];
}

- (void)addTryArea {
    _tryTitle = tactora::macos::makeWrappingLabel(
        "", [NSFont boldSystemFontOfSize:NSFont.smallSystemFontSize], columnWidth);
    [_column addArrangedSubview:_tryTitle];
    _tryLines = [NSStackView stackViewWithViews:@[]];
    _tryLines.orientation = NSUserInterfaceLayoutOrientationVertical;
    _tryLines.alignment = NSLayoutAttributeLeading;
    _tryLines.spacing = 2;
    [_tryLines.widthAnchor constraintEqualToConstant:columnWidth].active = YES;
    [_tryLines.heightAnchor constraintEqualToConstant:tryHeight].active = YES;
    [_column addArrangedSubview:_tryLines];
}

- (NSView*)makeButtonRow {
    _recommended = [NSButton buttonWithTitle:@"" target:self action:@selector(recommend:)];
    _restore = [NSButton buttonWithTitle:@"" target:self action:@selector(restoreDefaults:)];
    // Done is not the default button: Return applies the field being edited, and the sheet stays
    // up to say so when the value is refused. Escape closes it.
    _done = [NSButton buttonWithTitle:@"" target:self action:@selector(done:)];
    NSView* spacer = [[NSView alloc] initWithFrame:NSZeroRect];
    [spacer setContentHuggingPriority:NSLayoutPriorityDefaultLow
                       forOrientation:NSLayoutConstraintOrientationHorizontal];
    NSStackView* row = [NSStackView stackViewWithViews:@[ _recommended, _restore, spacer, _done ]];
    row.orientation = NSUserInterfaceLayoutOrientationHorizontal;
    row.spacing = 8;
    [row.widthAnchor constraintEqualToConstant:columnWidth].active = YES;
    return row;
}

- (void)fill:(const tactora::AdvancedSheet&)content {
    using tactora::macos::toNSString;
    _title.stringValue = toNSString(content.title);
    _explanation.stringValue = toNSString(content.explanation);
    NSUInteger checkbox = 0;
    NSUInteger heading = 0;
    NSUInteger value = 0;
    for (const tactora::AdvancedGroup& group : content.groups) {
        if (group.option && checkbox < _checkboxes.count) {
            NSButton* box = _checkboxes[checkbox++];
            box.title = toNSString(group.title);
            box.state = group.on ? NSControlStateValueOn : NSControlStateValueOff;
        } else if (!group.option && !group.title.empty() && heading < _headings.count) {
            _headings[heading++].stringValue = toNSString(group.title);
        }
        for (const tactora::AdvancedValue& row : group.values) {
            if (value < _fields.count) {
                [self fillValue:row at:value++];
            }
        }
    }
    _problem.stringValue = toNSString(content.problem);
    _problem.hidden = content.problem.empty();
    _tryTitle.stringValue = toNSString(content.tryTitle);
    _tryEmpty = content.tryEmpty;
    [self fillTries:content.tries];
    _recommended.title = toNSString(content.recommendedButton);
    _restore.title = toNSString(content.restoreButton);
    _done.title = toNSString(content.doneButton);
}

- (void)fillValue:(const tactora::AdvancedValue&)row at:(NSUInteger)index {
    using tactora::macos::toNSString;
    _labels[index].stringValue = toNSString(row.label);
    _units[index].stringValue = toNSString(row.unit);
    NSTextField* field = _fields[index];
    field.objectValue = @(row.value);
    field.enabled = row.enabled ? YES : NO;
    field.accessibilityLabel = toNSString(row.label);
}

- (void)showTries:(const std::vector<tactora::TryLine>&)tries
     announcement:(const std::string&)announcement {
    [self fillTries:tries];
    if (!announcement.empty() && _sheet != nil) {
        NSAccessibilityPostNotificationWithUserInfo(
            _sheet, NSAccessibilityAnnouncementRequestedNotification, @{
                NSAccessibilityAnnouncementKey : tactora::macos::toNSString(announcement),
                NSAccessibilityPriorityKey : @(NSAccessibilityPriorityMedium),
            });
    }
}

// Accepted touches in the label colour, the others in the secondary one.
- (void)fillTries:(const std::vector<tactora::TryLine>&)tries {
    NSMutableArray<NSView*>* lines = [NSMutableArray array];
    NSFont* font = [NSFont systemFontOfSize:noteSize];
    if (tries.empty()) {
        NSTextField* empty = tactora::macos::makeWrappingLabel(_tryEmpty, font, columnWidth);
        empty.textColor = NSColor.tertiaryLabelColor;
        [lines addObject:empty];
    }
    for (const tactora::TryLine& line : tries) {
        NSTextField* label = tactora::macos::makeWrappingLabel(line.text, font, columnWidth);
        label.textColor = line.accepted ? NSColor.labelColor : NSColor.secondaryLabelColor;
        [lines addObject:label];
    }
    [_tryLines setViews:lines inGravity:NSStackViewGravityTop];
}

- (void)optionChanged:(NSButton*)sender {
    [self.target setAdvancedOption:sender.tag on:(sender.state == NSControlStateValueOn)];
}

- (void)fieldChanged:(NSTextField*)sender {
    id object = sender.objectValue;
    const double value = [object isKindOfClass:NSNumber.class] ? [object doubleValue] : NAN;
    [self.target setAdvancedField:sender.tag value:value];
}

// What the formatter cannot read still goes to the core, as no number, which refuses it and
// says what the field takes.
- (BOOL)control:(NSControl*)control
    didFailToFormatString:(NSString*)string
         errorDescription:(nullable NSString*)error {
    return YES;
}

- (void)recommend:(id)sender {
    [self.target recommendAdvanced];
}

- (void)restoreDefaults:(id)sender {
    [self.target restoreAdvancedDefaults];
}

- (void)done:(id)sender {
    // The field being edited is applied before the sheet goes.
    [_sheet makeFirstResponder:nil];
    [_sheet.sheetParent endSheet:_sheet];
}

@end
