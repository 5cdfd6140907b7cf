// The More Gestures sheet as the shell builds it, in every language the bundle ships: within the
// settings window's width and height, every control inside the sheet, each pop-up showing and
// telling its target its slot's action (the further actions among them, grouped as in the gesture
// rows), and Escape closing it as Done does.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "core/actions/ExtraActionMenu.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "core/moresheet/MoreSheetRows.h"
#include "macos/AppBundle.h"
#include "macos/StringConversion.h"
#import "macos/TAMoreSheet.h"
#include "macos/ViewTree.h"

@interface TARecordingMoreSheetTarget : NSObject <TAMoreSheetTarget>
@property(nonatomic) NSInteger changedSlot;
@property(nonatomic) NSInteger changedAction;
@property(nonatomic) NSInteger recordedSlot;
@property(nonatomic) double depth;
@property(nonatomic) NSInteger closes;
@end

@implementation TARecordingMoreSheetTarget
- (void)changeMoreGesture:(NSInteger)slot action:(NSInteger)action {
    _changedSlot = slot;
    _changedAction = action;
}
- (void)recordMoreGesture:(NSInteger)slot {
    _recordedSlot = slot;
}
- (void)setTopBandDepth:(double)depth {
    _depth = depth;
}
- (void)closeMoreGestures {
    ++_closes;
}
@end

namespace tactora::testing {
namespace {

// The settings window's content size, which the sheet stays within.
constexpr CGFloat windowWidth = 790;
constexpr CGFloat windowHeight = 820;
constexpr CGFloat slack = 1;

class MoreSheetTest : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        installStringTable(GetParam());
        window_ = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, windowWidth, windowHeight)
                                              styleMask:NSWindowStyleMaskTitled
                                                backing:NSBackingStoreBuffered
                                                  defer:NO];
        window_.releasedWhenClosed = NO;
        [window_ orderFront:nil];
        sheet_.target = target_;
        [sheet_ showOnWindow:window_ content:moresheet::moreSheetContent(MoreGestureMap())];
        [content() layoutSubtreeIfNeeded];
    }

    void TearDown() override {
        if (sheet_.sheetWindow.sheetParent != nil) {
            [window_ endSheet:sheet_.sheetWindow];
        }
        [window_ close];
        setStringTable(nullptr);
    }

    NSView* content() const { return sheet_.sheetWindow.contentView; }

    NSPopUpButton* popUpOf(MoreGestureSlot slot) const {
        for (NSPopUpButton* popUp : subviewsOf<NSPopUpButton>(content())) {
            if (popUp.tag == static_cast<NSInteger>(moreslot::index(slot))) {
                return popUp;
            }
        }
        return nil;
    }

    NSWindow* window_ = nil;
    TAMoreSheet* sheet_ = [[TAMoreSheet alloc] init];
    TARecordingMoreSheetTarget* target_ = [[TARecordingMoreSheetTarget alloc] init];
};

TEST_P(MoreSheetTest, StaysWithinTheSettingsWindow) {
    const NSSize size = content().frame.size;
    EXPECT_LE(size.width, windowWidth);
    EXPECT_LE(size.height, windowHeight);
}

TEST_P(MoreSheetTest, NoControlLeavesTheSheet) {
    const NSRect bounds = content().bounds;
    for (NSControl* control : subviewsOf<NSControl>(content())) {
        const NSRect frame = [control.superview convertRect:control.frame toView:content()];
        EXPECT_GE(NSMinX(frame), NSMinX(bounds) - slack) << control.description.UTF8String;
        EXPECT_LE(NSMaxX(frame), NSMaxX(bounds) + slack) << control.description.UTF8String;
        EXPECT_GE(NSMinY(frame), NSMinY(bounds) - slack) << control.description.UTF8String;
        EXPECT_LE(NSMaxY(frame), NSMaxY(bounds) + slack) << control.description.UTF8String;
    }
}

TEST_P(MoreSheetTest, EveryGestureHasAPopUpShowingItsAction) {
    EXPECT_EQ(subviewsOf<NSPopUpButton>(content()).size(), moreslot::count);
    for (std::size_t i = 0; i < moreslot::count; ++i) {
        NSPopUpButton* popUp = popUpOf(static_cast<MoreGestureSlot>(i));
        ASSERT_NE(popUp, nil) << i;
        EXPECT_EQ(popUp.selectedItem.tag, action::defaultAction) << i;
    }
}

TEST_P(MoreSheetTest, ThePopUpTellsItsSlotAndTheChosenAction) {
    NSPopUpButton* hold = popUpOf(MoreGestureSlot::tapHold);
    ASSERT_NE(hold, nil);
    EXPECT_EQ([hold itemAtIndex:1].tag, action::middle);

    [hold selectItemAtIndex:1];
    [hold sendAction:hold.action to:hold.target];

    EXPECT_EQ(target_.changedSlot,
              static_cast<NSInteger>(moreslot::index(MoreGestureSlot::tapHold)));
    EXPECT_EQ(target_.changedAction, action::middle);
}

TEST_P(MoreSheetTest, ShowingAgainShowsTheNewSelectionsAndShortcuts) {
    MoreGestureMap map;
    const MoreGestureSlot swipe = moreslot::forSwipe(2, SwipeDirection::down);
    map.actions[moreslot::index(swipe)] = action::custom;
    map.shortcuts[moreslot::index(swipe)] = SavedShortcut(40, 0x100000, "⌘K");

    [sheet_ showOnWindow:window_ content:moresheet::moreSheetContent(map)];

    EXPECT_EQ(popUpOf(swipe).selectedItem.tag, action::custom);
    bool found = false;
    for (NSButton* button : subviewsOf<NSButton>(content())) {
        if (button.tag == static_cast<NSInteger>(moreslot::index(swipe)) &&
            ![button isKindOfClass:NSPopUpButton.class]) {
            found = true;
            EXPECT_TRUE(button.enabled);
            EXPECT_TRUE([button.title isEqualToString:@"⌘K"]);
        }
    }
    EXPECT_TRUE(found);
}

TEST_P(MoreSheetTest, EveryPopUpOffersTheFurtherActionsInTheGestureRowsGroups) {
    const std::vector<std::vector<ActionMenuEntry>> groups = extraActionMenu();
    for (std::size_t i = 0; i < moreslot::count; ++i) {
        NSPopUpButton* popUp = popUpOf(static_cast<MoreGestureSlot>(i));
        ASSERT_NE(popUp, nil) << i;
        // The fifteen, then each group after a separator.
        auto index = static_cast<NSInteger>(action::count);
        for (const std::vector<ActionMenuEntry>& group : groups) {
            ASSERT_LT(index, popUp.numberOfItems) << i;
            EXPECT_TRUE([popUp itemAtIndex:index++].separatorItem) << i;
            for (const ActionMenuEntry& entry : group) {
                NSMenuItem* item = [popUp itemAtIndex:index++];
                EXPECT_EQ(item.tag, entry.action) << i;
                EXPECT_EQ(macos::toStdString(item.title), entry.title) << i;
            }
        }
        EXPECT_EQ(index, popUp.numberOfItems) << i;
    }
}

TEST_P(MoreSheetTest, AFurtherActionChosenInAPopUpIsToldItsTarget) {
    NSPopUpButton* swipe = popUpOf(MoreGestureSlot::swipe1Up);
    ASSERT_NE(swipe, nil);
    const auto mute = static_cast<NSInteger>(action::index(ExtraAction::mute));

    [swipe selectItemWithTag:mute];
    [swipe sendAction:swipe.action to:swipe.target];

    EXPECT_EQ(target_.changedSlot,
              static_cast<NSInteger>(moreslot::index(MoreGestureSlot::swipe1Up)));
    EXPECT_EQ(target_.changedAction, mute);
}

TEST_P(MoreSheetTest, ASlotWithAFurtherActionShowsItAndItsRowsButton) {
    MoreGestureMap map;
    map.extras[moreslot::index(MoreGestureSlot::tapTop)] =
        SlotExtra{ExtraAction::runShortcut, "Morning Lights"};
    MoreSheetContent withButton = moresheet::moreSheetContent(map);
    for (MoreSheetSection& section : withButton.sections) {
        for (MoreSheetRow& row : section.rows) {
            if (row.slot == static_cast<std::int64_t>(moreslot::index(MoreGestureSlot::tapTop))) {
                row.record = {.enabled = false, .title = "Morning Lights", .toolTip = "x"};
            }
        }
    }

    [sheet_ showOnWindow:window_ content:withButton];
    [content() layoutSubtreeIfNeeded];

    EXPECT_EQ(popUpOf(MoreGestureSlot::tapTop).selectedItem.tag,
              static_cast<NSInteger>(action::index(ExtraAction::runShortcut)));
    bool found = false;
    for (NSButton* button : subviewsOf<NSButton>(content())) {
        if (button.tag == static_cast<NSInteger>(moreslot::index(MoreGestureSlot::tapTop)) &&
            ![button isKindOfClass:NSPopUpButton.class]) {
            found = true;
            EXPECT_FALSE(button.enabled);
            EXPECT_TRUE([button.title isEqualToString:@"Morning Lights"]);
        }
    }
    EXPECT_TRUE(found);
    EXPECT_LE(content().frame.size.width, windowWidth);
}

TEST_P(MoreSheetTest, EscapeClosesTheSheetAsDoneDoes) {
    NSWindow* sheet = sheet_.sheetWindow;
    ASSERT_EQ(sheet.sheetParent, window_);

    [sheet cancelOperation:nil];

    EXPECT_EQ(sheet.sheetParent, nil);
    EXPECT_EQ(window_.attachedSheet, nil);
}

INSTANTIATE_TEST_SUITE_P(ShippedLanguages, MoreSheetTest, ::testing::ValuesIn(shippedLanguages()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

}  // namespace
}  // namespace tactora::testing
