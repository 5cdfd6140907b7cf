// The settings window as the shell builds it, in every language the bundle ships and with every
// control that is sometimes hidden shown: its size, the column's insets, no control outside the
// column, no text or button cut off, the rows in order, the live view's room, and the values the
// refresh repeats left alone.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/actions/ExtraAction.h"
#include "core/actions/ExtraActionMenu.h"
#include "core/app/Globals.h"
#include "core/app/SettingsWindowTexts.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "macos/AppBundle.h"
#include "macos/AppKitSettingsView.h"
#include "macos/SettingsWindowBuilder.h"
#include "macos/StringConversion.h"
#import "macos/TAApplicationDelegate.h"
#import "macos/TASettingsControls.h"
#import "macos/TASurfaceView.h"
#include "macos/ViewTree.h"

namespace tactora::testing {
namespace {

constexpr CGFloat width = 790;
constexpr CGFloat height = 820;
constexpr CGFloat margin = 28;
constexpr CGFloat top = 24;
// Layout rounds to backing pixels.
constexpr CGFloat slack = 1;

// The longest of the texts the status line shows.
std::string longestStatus() {
    std::vector<std::string> lines = {L("sensor.missing"), L("error.enable"), L("error.paused"),
                                      L("shortcut.missing"), L("sensor.blocked", -536870212)};
    return *std::ranges::max_element(lines, {}, &std::string::size);
}

class SettingsWindowTest : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        installStringTable(GetParam());
        const SettingsWindowTexts texts = settingsWindowTexts();
        controls_ = [[TASettingsControls alloc] initWithEnableTitle:@(texts.enableSwitch.c_str())];
        // Texts as long as the lines ever get, set before the window is built as at launch.
        controls_.status.stringValue = @(longestStatus().c_str());
        controls_.permission.stringValue = @(L("permissions", L("pending"), L("pending")).c_str());
        controls_.live.stringValue =
            @(L("live", 4, L("gesture.click", 4), L("action.forward")).c_str());
        // The repair buttons as when both are needed: the widest the rows get.
        controls_.resetPermissions.hidden = NO;
        controls_.openLoginItems.hidden = NO;
        window_ = macos::SettingsWindowBuilder(controls_, target_).build(texts);
        [window_.contentView layoutSubtreeIfNeeded];
    }

    void TearDown() override {
        [window_ close];
        setStringTable(nullptr);
    }

    NSView* content() const { return window_.contentView; }
    NSStackView* column() const {
        return static_cast<NSStackView*>(content().subviews.firstObject);
    }

    NSRect inContent(NSView* view) const {
        return [view.superview convertRect:view.frame toView:content()];
    }

    std::size_t rowOf(NSView* view) const {
        NSArray<NSView*>* rows = column().arrangedSubviews;
        while (view != nil && ![rows containsObject:view]) {
            view = view.superview;
        }
        return view == nil ? rows.count : [rows indexOfObject:view];
    }

    TASettingsControls* controls_ = nil;
    TAApplicationDelegate* target_ = [[TAApplicationDelegate alloc] init];
    NSWindow* window_ = nil;
};

TEST_P(SettingsWindowTest, KeepsItsSize) {
    const NSRect contentRect = [window_ contentRectForFrameRect:window_.frame];
    EXPECT_EQ(contentRect.size.width, width);
    EXPECT_EQ(contentRect.size.height, height);
    EXPECT_EQ(content().frame.size.width, width);
    EXPECT_EQ(content().frame.size.height, height);
}

TEST_P(SettingsWindowTest, ColumnKeepsItsInsets) {
    ASSERT_TRUE([column() isKindOfClass:NSStackView.class]);
    const NSRect frame = inContent(column());
    EXPECT_NEAR(NSMinX(frame), margin, slack);
    EXPECT_NEAR(NSMaxX(frame), width - margin, slack);
    // The content view is not flipped: its top is at maxY.
    EXPECT_NEAR(height - NSMaxY(frame), top, slack);
}

TEST_P(SettingsWindowTest, NoViewLeavesTheColumnOrTheWindow) {
    for (NSView* view : subviewsOf<NSView>(column())) {
        const NSRect frame = inContent(view);
        EXPECT_GE(NSMinX(frame), margin - slack) << view.description.UTF8String;
        EXPECT_LE(NSMaxX(frame), width - margin + slack) << view.description.UTF8String;
        EXPECT_GE(NSMinY(frame), -slack) << view.description.UTF8String;
        EXPECT_LE(NSMaxY(frame), height + slack) << view.description.UTF8String;
    }
}

TEST_P(SettingsWindowTest, EveryLabelShowsAllOfItsText) {
    for (NSView* view : subviewsOf<NSView>(column())) {
        if (![view isKindOfClass:NSTextField.class]) {
            continue;
        }
        NSTextField* label = static_cast<NSTextField*>(view);
        const NSSize needed =
            [label.cell cellSizeForBounds:NSMakeRect(0, 0, label.frame.size.width, CGFLOAT_MAX)];
        EXPECT_LE(needed.height, label.frame.size.height + slack) << label.stringValue.UTF8String;
        EXPECT_LE(needed.width, label.frame.size.width + slack) << label.stringValue.UTF8String;
    }
}

TEST_P(SettingsWindowTest, NoButtonOrPopUpIsCutOff) {
    std::size_t checked = 0;
    for (NSView* view : subviewsOf<NSView>(column())) {
        if (![view isKindOfClass:NSButton.class] || view.hiddenOrHasHiddenAncestor) {
            continue;
        }
        // What the title (or the widest item) needs, against the room the layout gave it.
        NSButton* control = static_cast<NSButton*>(view);
        const NSSize needed = control.intrinsicContentSize;
        const NSRect given = [control alignmentRectForFrame:control.frame];
        EXPECT_LE(needed.width, given.size.width + slack) << control.title.UTF8String;
        EXPECT_LE(needed.height, given.size.height + slack) << control.title.UTF8String;
        ++checked;
    }
    // The three permission buttons, the repair button, the profile row's four buttons and two
    // pop-ups, the three boxes and the login items button, sixteen in the gesture table, and
    // the test button.
    EXPECT_GE(checked, 30U);
}

TEST_P(SettingsWindowTest, TheRepairButtonsSitUnderThePermissionLineAndBesideTheLoginBox) {
    EXPECT_EQ(rowOf(controls_.resetPermissions), rowOf(controls_.permission) + 1);
    EXPECT_EQ(rowOf(controls_.openLoginItems), rowOf(controls_.loginItem));
    EXPECT_EQ(rowOf(controls_.loginItem), rowOf(controls_.enabled));
    EXPECT_LT(NSMaxX(inContent(controls_.loginItem)), NSMinX(inContent(controls_.openLoginItems)));
}

TEST_P(SettingsWindowTest, AHiddenRepairButtonTakesNoRoom) {
    const CGFloat profileTop = NSMaxY(inContent(controls_.profileMenu));
    controls_.resetPermissions.hidden = YES;
    [content() layoutSubtreeIfNeeded];
    EXPECT_GT(NSMaxY(inContent(controls_.profileMenu)), profileTop + 10);
}

TEST_P(SettingsWindowTest, TheLiveViewSitsUnderTheGestureTableWithinTheColumn) {
    TASurfaceView* surface = controls_.surface;
    EXPECT_GT(rowOf(surface), rowOf(controls_.actionMenus[7]));
    EXPECT_LT(rowOf(surface), column().arrangedSubviews.count);
    const NSRect frame = inContent(surface);
    EXPECT_LE(NSMaxY(frame), NSMinY(inContent(controls_.actionMenus[7])));
    EXPECT_GE(NSMinY(frame), -slack);
    for (NSView* view : subviewsOf<NSView>(column())) {
        if ([view isKindOfClass:NSControl.class] && ![surface isDescendantOf:view]) {
            EXPECT_FALSE(NSIntersectsRect(frame, inContent(view))) << view.description.UTF8String;
        }
    }
}

TEST_P(SettingsWindowTest, FourFingersRestingSideBySideShowFourSeparateDots) {
    TASurfaceView* surface = controls_.surface;
    // Fingers side by side near the front rest about a sixth of the surface's width apart.
    std::vector<NSRect> dots;
    for (const double left : {0.25, 0.4, 0.55, 0.7}) {
        dots.push_back([surface dotRectForContact:SurfaceContact{.left = left, .top = 0.2}]);
    }
    for (std::size_t i = 0; i < dots.size(); ++i) {
        EXPECT_GE(dots[i].size.width, 6);
        for (std::size_t j = i + 1; j < dots.size(); ++j) {
            EXPECT_FALSE(NSIntersectsRect(dots[i], dots[j])) << i << " " << j;
        }
    }
}

TEST_P(SettingsWindowTest, EveryGestureAndActionNameFitsOnOneLineInTheLiveView) {
    TASurfaceView* surface = controls_.surface;
    const CGFloat width = surface.textWidth;
    // The first action, the system default, is never shown as a performed action.
    for (std::size_t index = 1; index < choices().size(); ++index) {
        NSString* name = @(choices()[index].c_str());
        EXPECT_LE([name sizeWithAttributes:TASurfaceView.actionAttributes].width, width)
            << name.UTF8String;
    }
    for (std::int64_t fingers = 1; fingers <= 4; ++fingers) {
        for (const char* key : {"gesture.tap", "gesture.click"}) {
            NSString* name = @(L(key, fingers).c_str());
            EXPECT_LE([name sizeWithAttributes:TASurfaceView.gestureAttributes].width, width)
                << name.UTF8String;
        }
    }
}

// The refresh timer hands the view the same values five times a second; they must not make
// the window lay itself out again.
TEST_P(SettingsWindowTest, RepeatingTheShownValuesLeavesTheLayoutAlone) {
    const auto needingLayout = [this] {
        std::size_t count = content().needsLayout ? 1 : 0;
        for (NSView* view : subviewsOf<NSView>(content())) {
            count += view.needsLayout ? 1 : 0;
        }
        return count;
    };
    const std::size_t before = needingLayout();
    macos::AppKitSettingsView view(controls_);
    view.setStatusText(macos::toStdString(controls_.status.stringValue));
    view.setPermissionText(macos::toStdString(controls_.permission.stringValue));
    view.setLiveText(macos::toStdString(controls_.live.stringValue));
    view.setEnabledOn(false);
    view.setKeepOnChecked(false);
    view.setLoginItemChecked(false);
    view.setResetPermissionsVisible(true);
    view.setLoginItemsSettingsVisible(true);
    NSButton* record = controls_.recordButtons[0];
    view.setRecordButton(0, {.enabled = record.enabled == YES,
                             .title = macos::toStdString(record.title),
                             .toolTip = ""});

    EXPECT_EQ(needingLayout(), before);
    EXPECT_FALSE(controls_.resetPermissions.hidden);
    EXPECT_TRUE([controls_.status.stringValue isEqualToString:@(longestStatus().c_str())]);
}

TEST_P(SettingsWindowTest, ANewValueIsShown) {
    macos::AppKitSettingsView view(controls_);
    view.setStatusText("A new line");
    view.setEnabledOn(true);
    view.setResetPermissionsVisible(false);

    EXPECT_TRUE([controls_.status.stringValue isEqualToString:@"A new line"]);
    EXPECT_EQ(controls_.enabled.state, NSControlStateValueOn);
    EXPECT_TRUE(controls_.resetPermissions.hidden);
}

TEST_P(SettingsWindowTest, RowsComeInOrder) {
    const std::vector<std::size_t> order = {
        rowOf(controls_.status),  rowOf(controls_.permission),     rowOf(controls_.profileMenu),
        rowOf(controls_.enabled), rowOf(controls_.actionMenus[0]), rowOf(controls_.actionMenus[7]),
        rowOf(controls_.live)};
    EXPECT_TRUE(std::ranges::is_sorted(order));
    EXPECT_EQ(std::ranges::adjacent_find(order), order.end());
    EXPECT_LT(order.back(), column().arrangedSubviews.count);
}

TEST_P(SettingsWindowTest, GestureRowsHoldTheirSlotsInOrder) {
    ASSERT_EQ(controls_.actionMenus.count, 8U);
    ASSERT_EQ(controls_.recordButtons.count, 8U);
    for (NSUInteger slot = 0; slot < 8; ++slot) {
        NSPopUpButton* menu = controls_.actionMenus[slot];
        NSButton* record = controls_.recordButtons[slot];
        EXPECT_EQ(menu.tag, static_cast<NSInteger>(slot));
        EXPECT_EQ(record.tag, static_cast<NSInteger>(slot));
        EXPECT_EQ(rowOf(menu), rowOf(record));
        // The fifteen, then each group of extra actions after a separator; every action's item
        // is tagged with it.
        const std::vector<std::vector<ActionMenuEntry>> groups = extraActionMenu();
        std::size_t extras = 0;
        for (const auto& group : groups) {
            extras += group.size();
        }
        EXPECT_EQ(menu.numberOfItems,
                  static_cast<NSInteger>(choices().size() + groups.size() + extras));
        for (NSInteger action = 0; action < action::allCount; ++action) {
            const NSInteger index = [menu indexOfItemWithTag:action];
            ASSERT_GE(index, 0) << action;
            EXPECT_FALSE([menu itemAtIndex:index].separatorItem) << action;
        }
        EXPECT_TRUE([menu itemAtIndex:static_cast<NSInteger>(choices().size())].separatorItem);
        if (slot > 0) {
            EXPECT_LT(rowOf(controls_.actionMenus[slot - 1]), rowOf(menu));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(ShippedLanguages, SettingsWindowTest,
                         ::testing::ValuesIn(shippedLanguages()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

}  // namespace
}  // namespace tactora::testing
