// The touch devices' part of the settings window as the shell builds it, in every language the
// bundle ships, with as much as it ever shows (three devices, one that failed to start; the
// choice of surface; the trackpads' rows with every system gesture in conflict): the window's
// size, no control outside the column or the sheet, no text or button cut off, the places of the
// controls, the sheet, and what each control tells its target.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "core/actions/ExtraAction.h"
#include "core/actions/ExtraActionMenu.h"
#include "core/app/Globals.h"
#include "core/app/SettingsWindowTexts.h"
#include "core/devices/SystemGestureConflicts.h"
#include "core/devicetable/DeviceTableRows.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "core/profiles/GestureSlot.h"
#include "macos/AppBundle.h"
#include "macos/AppKitDeviceTableView.h"
#include "macos/SettingsWindowBuilder.h"
#include "macos/StringConversion.h"
#import "macos/TAApplicationDelegate.h"
#import "macos/TADeviceTable.h"
#import "macos/TASettingsControls.h"
#include "macos/ViewTree.h"

@interface TARecordingDeviceTableTarget : NSObject <TADeviceTableTarget>
@property(nonatomic) std::uint64_t device;
@property(nonatomic) BOOL on;
@property(nonatomic) NSInteger surface;
@property(nonatomic) NSInteger changedSlot;
@property(nonatomic) NSInteger changedAction;
@property(nonatomic) NSInteger recordedSlot;
@property(nonatomic) NSInteger openedTag;
@end

@implementation TARecordingDeviceTableTarget
- (void)useDevice:(std::uint64_t)device on:(BOOL)on {
    _device = device;
    _on = on;
}
- (void)chooseSurface:(NSInteger)surface {
    _surface = surface;
}
- (void)changeTrackpadGesture:(NSInteger)slot action:(NSInteger)action {
    _changedSlot = slot;
    _changedAction = action;
}
- (void)recordTrackpadGesture:(NSInteger)slot {
    _recordedSlot = slot;
}
- (void)openConflictSettings:(NSInteger)tag {
    _openedTag = tag;
}
@end

namespace tactora::testing {
namespace {

constexpr CGFloat width = 790;
constexpr CGFloat height = 820;
constexpr CGFloat margin = 28;
// Layout rounds to backing pixels.
constexpr CGFloat slack = 1;

constexpr std::uint64_t mouseID = 10;
constexpr std::uint64_t trackpadID = 20;
constexpr std::uint64_t builtInID = 30;

// Every slot mapped, every system gesture on: every conflict there can be.
GestureSlots everySlotMapped() {
    GestureSlots slots;
    slots.actions = std::vector<ActionIndex>(slot::count, action::middle);
    slots.actions[1] = action::custom;
    slots.shortcuts[1] = SavedShortcut(40, 0x100000, "⌘K");
    return slots;
}

constexpr TrackpadSettings everyGestureOn{.tapToClick = true,
                                          .secondaryClick = true,
                                          .threeFingerDrag = true,
                                          .lookUpByThreeFingerTap = true,
                                          .smartZoom = true};

// As much as the part ever shows, as the core makes it.
DeviceTableContent fullContent(bool trackpadRows) {
    const std::vector<TouchDevice> devices = {
        {.id = mouseID,
         .kind = TouchDeviceKind::magicMouse,
         .state = TouchDeviceState::connected,
         .name = "Magic Mouse"},
        {.id = trackpadID,
         .kind = TouchDeviceKind::magicTrackpad,
         .state = TouchDeviceState::missing,
         .name = "Magic Trackpad"},
        {.id = builtInID,
         .kind = TouchDeviceKind::builtInTrackpad,
         .state = TouchDeviceState::blocked,
         .error = -536870212,
         .name = ""},
    };
    const GestureSlots slots = everySlotMapped();
    DeviceTableContent content{
        .showsSurfaceChoice = true,
        .openTitle = L("devices.open"),
        .mouseSurface = L("devices.surface.mouse"),
        .trackpadSurface = L("devices.surface.trackpads"),
        .surfaceHelp = L("devices.surface.help"),
        .showsTrackpadRows = trackpadRows,
        .rows = devicetable::trackpadRows(slots, nullptr),
        .devicesTitle = L("devices.title"),
        .devices = devicetable::deviceLines(
            devices, [](const TouchDevice& device) { return device.id == builtInID; }),
        .hint = L("devices.trackpad.hint"),
        .conflicts = devicetable::conflictLines(slots, everyGestureOn),
        .doneTitle = L("devices.done"),
    };
    devicetable::markConflicts(content.rows, content.conflicts);
    return content;
}

// What the part shows with the Magic Mouse alone.
DeviceTableContent mouseOnly() {
    DeviceTableContent content = fullContent(false);
    content.showsSurfaceChoice = false;
    content.devices.resize(1);
    content.conflicts.clear();
    devicetable::markConflicts(content.rows, content.conflicts);
    return content;
}

class DeviceTableTest : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        installStringTable(GetParam());
        const SettingsWindowTexts texts = settingsWindowTexts();
        controls_ = [[TASettingsControls alloc] initWithEnableTitle:@(texts.enableSwitch.c_str())];
        controls_.resetPermissions.hidden = NO;
        controls_.openLoginItems.hidden = NO;
        window_ = macos::SettingsWindowBuilder(controls_, delegate_).build(texts);
        [window_ orderFront:nil];
        table().target = target_;
        show(fullContent(true));
    }

    void TearDown() override {
        NSWindow* sheet = table().sheetWindow;
        if (sheet.sheetParent != nil) {
            [window_ endSheet:sheet];
        }
        [window_ close];
        setStringTable(nullptr);
    }

    void show(const DeviceTableContent& content) {
        macos::AppKitDeviceTableView(controls_).showDeviceTable(content);
        [window_.contentView layoutSubtreeIfNeeded];
    }

    NSView* openSheet() {
        [table().openButton performClick:nil];
        NSView* sheet = table().sheetWindow.contentView;
        [sheet layoutSubtreeIfNeeded];
        return sheet;
    }

    TADeviceTable* table() const { return controls_.deviceTable; }
    NSView* content() const { return window_.contentView; }
    NSStackView* column() const {
        return static_cast<NSStackView*>(content().subviews.firstObject);
    }
    static NSRect in(NSView* view, NSView* container) {
        return [view.superview convertRect:view.frame toView:container];
    }
    NSRect inContent(NSView* view) const { return in(view, content()); }
    std::size_t rowOf(NSView* view) const {
        NSArray<NSView*>* rows = column().arrangedSubviews;
        while (view != nil && ![rows containsObject:view]) {
            view = view.superview;
        }
        return view == nil ? rows.count : [rows indexOfObject:view];
    }
    static bool shownIn(NSView* view, NSWindow* window) {
        return view.window == window && !view.hiddenOrHasHiddenAncestor;
    }
    bool shown(NSView* view) const { return shownIn(view, window_); }

    TASettingsControls* controls_ = nil;
    TAApplicationDelegate* delegate_ = [[TAApplicationDelegate alloc] init];
    TARecordingDeviceTableTarget* target_ = [[TARecordingDeviceTableTarget alloc] init];
    NSWindow* window_ = nil;
};

NSRect aligned(NSView* view, NSView* container) {
    return [view.superview convertRect:[view alignmentRectForFrame:view.frame] toView:container];
}

// Hidden views (the rows not shown, detached by their stacks) have no place to check.
void expectWithin(NSView* container, NSRect bounds) {
    for (NSView* view : subviewsOf<NSView>(container)) {
        if (view.hiddenOrHasHiddenAncestor) {
            continue;
        }
        const NSRect frame = aligned(view, container);
        EXPECT_GE(NSMinX(frame), NSMinX(bounds) - slack) << view.description.UTF8String;
        EXPECT_LE(NSMaxX(frame), NSMaxX(bounds) + slack) << view.description.UTF8String;
        EXPECT_GE(NSMinY(frame), NSMinY(bounds) - slack) << view.description.UTF8String;
        EXPECT_LE(NSMaxY(frame), NSMaxY(bounds) + slack) << view.description.UTF8String;
    }
}

void expectLabelsWhole(NSView* container) {
    for (NSTextField* label : subviewsOf<NSTextField>(container)) {
        if (label.hiddenOrHasHiddenAncestor) {
            continue;
        }
        const NSSize needed =
            [label.cell cellSizeForBounds:NSMakeRect(0, 0, label.frame.size.width, CGFLOAT_MAX)];
        EXPECT_LE(needed.height, label.frame.size.height + slack) << label.stringValue.UTF8String;
        EXPECT_LE(needed.width, label.frame.size.width + slack) << label.stringValue.UTF8String;
    }
}

// Every titled control shown gets the room its title asks for; returns how many there were.
std::size_t expectControlsWhole(NSView* container, NSArray<NSView*>* except) {
    std::size_t checked = 0;
    for (NSControl* control : subviewsOf<NSControl>(container)) {
        if (control.hiddenOrHasHiddenAncestor || [control isKindOfClass:NSTextField.class] ||
            [except containsObject:control]) {
            continue;
        }
        const NSSize needed = control.intrinsicContentSize;
        const NSRect given = [control alignmentRectForFrame:control.frame];
        EXPECT_LE(needed.width, given.size.width + slack) << control.description.UTF8String;
        EXPECT_LE(needed.height, given.size.height + slack) << control.description.UTF8String;
        ++checked;
    }
    return checked;
}

TEST_P(DeviceTableTest, TheWindowKeepsItsSize) {
    const NSRect contentRect = [window_ contentRectForFrameRect:window_.frame];
    EXPECT_EQ(contentRect.size.width, width);
    EXPECT_EQ(contentRect.size.height, height);
}

TEST_P(DeviceTableTest, NoViewLeavesTheColumnOrTheWindowWithTheTrackpadRowsOrTheMouses) {
    for (const bool trackpadRows : {true, false}) {
        show(fullContent(trackpadRows));
        expectWithin(column(),
                     [column() convertRect:NSMakeRect(margin, 0, width - 2 * margin, height)
                                  fromView:content()]);
    }
}

TEST_P(DeviceTableTest, EveryLabelShowsAllOfItsText) {
    expectLabelsWhole(column());
}

TEST_P(DeviceTableTest, NoButtonPopUpOrSegmentIsCutOff) {
    // The warning signs are pictures scaled to their room. Counted: the permission rows' four,
    // the profile row's five, the three boxes and the login items button, the sheet's button and
    // the choice of surface, sixteen in the trackpads' rows, the test button and the two that
    // open sheets.
    EXPECT_GE(expectControlsWhole(column(), table().conflictMarkers), 33U);
}

TEST_P(DeviceTableTest, TheDeviceControlsEndTheFirstHeadingsLine) {
    show(fullContent(false));
    NSButton* open = table().openButton;
    NSSegmentedControl* surface = table().surfaceControl;
    EXPECT_TRUE(shown(open));
    EXPECT_TRUE(shown(surface));
    EXPECT_EQ(rowOf(open), rowOf(controls_.enabled) + 1);
    EXPECT_EQ(rowOf(surface), rowOf(open));
    EXPECT_EQ(rowOf(controls_.actionMenus[0]), rowOf(open) + 1);
    EXPECT_NEAR(NSMaxX(aligned(surface, content())), width - margin, slack);
    EXPECT_LT(NSMaxX(aligned(open, content())), NSMinX(aligned(surface, content())));
    EXPECT_GE(NSMinY(aligned(open, content())),
              NSMaxY(aligned(controls_.actionMenus[0], content())));
}

TEST_P(DeviceTableTest, WithTheMagicMouseAloneTheWindowIsLaidOutAsBuilt) {
    TASettingsControls* plain =
        [[TASettingsControls alloc] initWithEnableTitle:controls_.enabled.title];
    plain.resetPermissions.hidden = NO;
    plain.openLoginItems.hidden = NO;
    NSWindow* without = macos::SettingsWindowBuilder(plain, delegate_).build(settingsWindowTexts());
    [without.contentView layoutSubtreeIfNeeded];

    show(mouseOnly());

    EXPECT_FALSE(shown(table().openButton));
    EXPECT_FALSE(shown(table().surfaceControl));
    for (NSUInteger slot = 0; slot < 8; ++slot) {
        EXPECT_TRUE(shown(controls_.actionMenus[slot]));
        EXPECT_FALSE(shown(table().trackpadMenus[slot]));
        EXPECT_TRUE(NSEqualRects(inContent(controls_.actionMenus[slot]),
                                 in(plain.actionMenus[slot], without.contentView)))
            << slot;
    }
    EXPECT_TRUE(NSEqualRects(inContent(controls_.surface), in(plain.surface, without.contentView)));
    // The first heading's line is as tall as the heading.
    NSView* line = column().arrangedSubviews[rowOf(controls_.actionMenus[0]) - 1];
    const std::vector<NSTextField*> heading = subviewsOf<NSTextField>(line);
    ASSERT_EQ(heading.size(), 1U);
    EXPECT_NEAR(line.frame.size.height, heading[0].frame.size.height, slack);
    [without close];
}

TEST_P(DeviceTableTest, TheChoiceTellsTheSurfaceChosen) {
    NSSegmentedControl* surface = table().surfaceControl;
    EXPECT_EQ(surface.selectedSegment, 1);
    EXPECT_EQ(macos::toStdString([surface labelForSegment:0]), L("devices.surface.mouse"));
    EXPECT_EQ(macos::toStdString([surface labelForSegment:1]), L("devices.surface.trackpads"));
    EXPECT_EQ(macos::toStdString(surface.toolTip), L("devices.surface.help"));

    surface.selectedSegment = 0;
    [surface sendAction:surface.action to:surface.target];
    EXPECT_EQ(target_.surface, 0);

    surface.selectedSegment = 1;
    [surface sendAction:surface.action to:surface.target];
    EXPECT_EQ(target_.surface, 1);
}

TEST_P(DeviceTableTest, TheTrackpadRowsTakeTheMouseRowsPlaces) {
    std::vector<NSRect> trackpadPlaces;
    for (NSUInteger slot = 0; slot < 8; ++slot) {
        EXPECT_FALSE(shown(controls_.actionMenus[slot]));
        EXPECT_TRUE(shown(table().trackpadMenus[slot]));
        trackpadPlaces.push_back(inContent(table().trackpadMenus[slot]));
    }
    const NSRect surfaceWithTrackpads = inContent(controls_.surface);

    show(fullContent(false));

    EXPECT_EQ(table().surfaceControl.selectedSegment, 0);
    for (NSUInteger slot = 0; slot < 8; ++slot) {
        EXPECT_TRUE(shown(controls_.actionMenus[slot]));
        EXPECT_FALSE(shown(table().trackpadMenus[slot]));
        EXPECT_TRUE(NSEqualRects(inContent(controls_.actionMenus[slot]), trackpadPlaces[slot]))
            << slot;
    }
    EXPECT_TRUE(NSEqualRects(inContent(controls_.surface), surfaceWithTrackpads));
}

TEST_P(DeviceTableTest, TheTrackpadRowsAreBuiltAsTheMouses) {
    ASSERT_EQ(table().trackpadMenus.count, 8U);
    ASSERT_EQ(table().trackpadRecordButtons.count, 8U);
    const std::vector<std::vector<ActionMenuEntry>> groups = extraActionMenu();
    std::size_t extras = 0;
    for (const auto& group : groups) {
        extras += group.size();
    }
    for (NSUInteger slot = 0; slot < 8; ++slot) {
        NSPopUpButton* menu = table().trackpadMenus[slot];
        NSButton* record = table().trackpadRecordButtons[slot];
        EXPECT_EQ(menu.tag, static_cast<NSInteger>(slot));
        EXPECT_EQ(record.tag, static_cast<NSInteger>(slot));
        EXPECT_EQ(rowOf(menu), rowOf(record));
        EXPECT_EQ(menu.numberOfItems,
                  static_cast<NSInteger>(choices().size() + groups.size() + extras));
        if (slot > 0) {
            EXPECT_LT(NSMaxY(aligned(menu, content())),
                      NSMinY(aligned(table().trackpadMenus[slot - 1], content())));
        }
    }
    EXPECT_EQ(table().trackpadMenus[1].selectedItem.tag, action::custom);
    EXPECT_TRUE(table().trackpadRecordButtons[1].enabled);
    EXPECT_TRUE([table().trackpadRecordButtons[1].title isEqualToString:@"⌘K"]);
    EXPECT_EQ(table().trackpadMenus[0].selectedItem.tag, action::middle);
}

TEST_P(DeviceTableTest, APopUpAndARecordButtonTellTheirSlot) {
    NSPopUpButton* menu = table().trackpadMenus[6];
    const auto mute = static_cast<NSInteger>(action::index(ExtraAction::mute));
    [menu selectItemWithTag:mute];
    [menu sendAction:menu.action to:menu.target];
    EXPECT_EQ(target_.changedSlot, 6);
    EXPECT_EQ(target_.changedAction, mute);

    NSButton* record = table().trackpadRecordButtons[1];
    [record performClick:nil];
    EXPECT_EQ(target_.recordedSlot, 1);
}

TEST_P(DeviceTableTest, ACompetingRowShowsASignThatSaysWithWhatAndOpensTheSheet) {
    DeviceTableContent one = fullContent(true);
    one.conflicts.resize(1);
    devicetable::markConflicts(one.rows, one.conflicts);
    show(one);
    const auto competing = static_cast<NSUInteger>(one.conflicts[0].slot);
    for (NSUInteger slot = 0; slot < 8; ++slot) {
        NSButton* sign = table().conflictMarkers[slot];
        EXPECT_EQ(shown(sign), slot == competing) << slot;
    }
    NSButton* sign = table().conflictMarkers[competing];
    EXPECT_EQ(macos::toStdString(sign.toolTip), one.conflicts[0].text);
    EXPECT_EQ(macos::toStdString(sign.accessibilityLabel), one.conflicts[0].text);
    EXPECT_EQ(rowOf(sign), rowOf(table().trackpadMenus[competing]));
    EXPECT_LT(NSMaxX(aligned(table().trackpadRecordButtons[competing], content())),
              NSMinX(aligned(sign, content())));

    [sign performClick:nil];

    EXPECT_EQ(table().sheetWindow.sheetParent, window_);
}

TEST_P(DeviceTableTest, TheButtonOpensTheSheetAndDoneClosesIt) {
    EXPECT_EQ(table().sheetWindow, nil);
    EXPECT_EQ(macos::toStdString(table().openButton.title), L("devices.open"));

    openSheet();
    NSWindow* sheet = table().sheetWindow;
    ASSERT_EQ(sheet.sheetParent, window_);
    NSButton* done = nil;
    for (NSButton* button : subviewsOf<NSButton>(sheet.contentView)) {
        if ([button.title isEqualToString:@(L("devices.done").c_str())]) {
            done = button;
        }
    }
    ASSERT_NE(done, nil);
    EXPECT_TRUE([done.keyEquivalent isEqualToString:@"\r"]);
    [done performClick:nil];

    EXPECT_EQ(sheet.sheetParent, nil);
    EXPECT_EQ(window_.attachedSheet, nil);
}

TEST_P(DeviceTableTest, EscapeClosesTheSheetAsDoneDoes) {
    openSheet();
    NSWindow* sheet = table().sheetWindow;
    ASSERT_EQ(sheet.sheetParent, window_);

    [sheet cancelOperation:nil];

    EXPECT_EQ(sheet.sheetParent, nil);
    EXPECT_EQ(window_.attachedSheet, nil);
}

TEST_P(DeviceTableTest, TheSheetTakesTheHeightItsContentNeeds) {
    NSView* sheet = openSheet();
    const CGFloat full = sheet.frame.size.height;
    EXPECT_NEAR(full, sheet.fittingSize.height, slack);

    DeviceTableContent fewer = fullContent(true);
    fewer.devices.resize(2);
    fewer.conflicts.clear();
    show(fewer);
    [sheet layoutSubtreeIfNeeded];

    EXPECT_NEAR(sheet.frame.size.height, sheet.fittingSize.height, slack);
    EXPECT_LT(sheet.frame.size.height, full);
}

TEST_P(DeviceTableTest, TheSheetStaysWithinTheWindowAndShowsAllOfItself) {
    NSView* sheet = openSheet();
    EXPECT_LE(sheet.frame.size.width, width);
    EXPECT_LE(sheet.frame.size.height, height);
    expectWithin(sheet, sheet.bounds);
    expectLabelsWhole(sheet);
    // Three boxes, seven conflicts' buttons and Done.
    EXPECT_GE(expectControlsWhole(sheet, @[]), 11U);
}

TEST_P(DeviceTableTest, TheSheetsBoxesShowTheDevicesAndTheMagicMouseCannotBeUnticked) {
    openSheet();
    const DeviceTableContent full = fullContent(true);
    ASSERT_EQ(table().deviceBoxes.count, full.devices.size());
    for (std::size_t i = 0; i < full.devices.size(); ++i) {
        NSButton* box = table().deviceBoxes[i];
        EXPECT_TRUE(shownIn(box, table().sheetWindow));
        EXPECT_EQ(macos::toStdString(box.title), full.devices[i].title);
        EXPECT_EQ(box.state == NSControlStateValueOn, full.devices[i].checked);
        EXPECT_EQ(box.enabled == YES, full.devices[i].enabled);
        EXPECT_EQ(macos::toStdString(box.toolTip), L("devices.use.help"));
    }
    EXPECT_EQ(table().deviceBoxes[0].enabled, NO);
    EXPECT_EQ(table().deviceBoxes[0].state, NSControlStateValueOn);
}

TEST_P(DeviceTableTest, AVeryLongDeviceNameLosesItsEndWithinTheSheet) {
    NSView* sheet = openSheet();
    DeviceTableContent longName = fullContent(true);
    longName.devices[1].title = std::string(300, 'W');
    show(longName);
    [sheet layoutSubtreeIfNeeded];

    EXPECT_LE(sheet.frame.size.width, width);
    expectWithin(sheet, sheet.bounds);
    EXPECT_EQ(macos::toStdString(table().deviceBoxes[1].title), longName.devices[1].title);
}

TEST_P(DeviceTableTest, ABoxTellsItsDeviceAndWhetherItIsTicked) {
    openSheet();
    NSButton* trackpad = table().deviceBoxes[1];
    [trackpad performClick:nil];
    EXPECT_EQ(target_.device, trackpadID);
    EXPECT_TRUE(target_.on);

    NSButton* builtIn = table().deviceBoxes[2];
    [builtIn performClick:nil];
    EXPECT_EQ(target_.device, builtInID);
    EXPECT_FALSE(target_.on);
}

TEST_P(DeviceTableTest, TheOpenSheetFollowsTheContent) {
    openSheet();
    DeviceTableContent fewer = fullContent(true);
    fewer.devices.resize(2);
    fewer.conflicts.clear();
    show(fewer);
    EXPECT_EQ(table().deviceBoxes.count, 2U);
    EXPECT_EQ(table().conflictLabels.count, 0U);

    show(fullContent(true));
    EXPECT_EQ(table().deviceBoxes.count, 3U);
    EXPECT_EQ(table().conflictLabels.count, fullContent(true).conflicts.size());
}

TEST_P(DeviceTableTest, EveryConflictHasItsLineAndItsButtonInTheSheet) {
    NSView* sheet = openSheet();
    const std::vector<ConflictLine> lines = fullContent(true).conflicts;
    ASSERT_EQ(table().conflictLabels.count, lines.size());
    ASSERT_EQ(table().conflictButtons.count, lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        NSTextField* label = table().conflictLabels[i];
        NSButton* open = table().conflictButtons[i];
        EXPECT_EQ(macos::toStdString(label.stringValue), lines[i].text);
        EXPECT_EQ(macos::toStdString(open.title), L("devices.conflict.open"));
        EXPECT_TRUE(shownIn(open, table().sheetWindow));
        EXPECT_LT(NSMaxX(aligned(label, sheet)), NSMinX(aligned(open, sheet)));
        [open performClick:nil];
        EXPECT_EQ(target_.openedTag, lines[i].tag);
        if (i > 0) {
            EXPECT_LT(NSMaxY(in(label, sheet)), NSMinY(in(table().conflictLabels[i - 1], sheet)));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(ShippedLanguages, DeviceTableTest, ::testing::ValuesIn(shippedLanguages()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

}  // namespace
}  // namespace tactora::testing
