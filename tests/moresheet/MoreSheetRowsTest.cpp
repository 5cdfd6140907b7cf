#include "core/moresheet/MoreSheetRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"

namespace tactora::testing {
namespace {

// Every key shows as itself, except the finger counts, whose arguments the tests read back.
class MoreSheetRowsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setStringTable(std::make_shared<const StringsTable>(StringsTable::Entries{
            {"finger.one", "1 finger"},
            {"finger.many", "%lld fingers"},
        }));
        initializeGlobals();
    }
    void TearDown() override { setStringTable(nullptr); }

    static std::vector<MoreSheetRow> allRows(const MoreSheetContent& content) {
        std::vector<MoreSheetRow> rows;
        for (const MoreSheetSection& section : content.sections) {
            rows.insert(rows.end(), section.rows.begin(), section.rows.end());
        }
        return rows;
    }

    static MoreSheetRow rowOf(const MoreSheetContent& content, MoreGestureSlot slot) {
        for (const MoreSheetRow& row : allRows(content)) {
            if (row.slot == static_cast<std::int64_t>(moreslot::index(slot))) {
                return row;
            }
        }
        ADD_FAILURE() << "no row for " << moreslot::name(slot);
        return {};
    }

    static std::vector<ActionIndex> tags(const MoreSheetRow& row) {
        std::vector<ActionIndex> result;
        for (const ActionMenuEntry& entry : row.actions) {
            result.push_back(entry.action);
        }
        return result;
    }
};

TEST_F(MoreSheetRowsTest, FourSectionsListEveryGestureOnceInSlotOrder) {
    const MoreSheetContent content = moresheet::moreSheetContent(MoreGestureMap());

    ASSERT_EQ(content.sections.size(), 4U);
    EXPECT_EQ(content.sections[0].heading, "more.section.region");
    EXPECT_EQ(content.sections[1].heading, "more.section.tip");
    EXPECT_EQ(content.sections[2].heading, "more.section.swipe");
    EXPECT_EQ(content.sections[3].heading, "more.section.hold");
    EXPECT_EQ(content.sections[0].rows.size(), 3U);
    EXPECT_EQ(content.sections[1].rows.size(), 2U);
    EXPECT_EQ(content.sections[2].rows.size(), 12U);
    EXPECT_EQ(content.sections[3].rows.size(), 1U);
    std::int64_t expected = 0;
    for (const MoreSheetRow& row : allRows(content)) {
        EXPECT_EQ(row.slot, expected++);
    }
    EXPECT_EQ(expected, static_cast<std::int64_t>(moreslot::count));
}

TEST_F(MoreSheetRowsTest, SheetHasItsTitleIntroAndDone) {
    const MoreSheetContent content = moresheet::moreSheetContent(MoreGestureMap());

    EXPECT_EQ(content.title, "more.title");
    EXPECT_EQ(content.intro, "more.intro");
    EXPECT_EQ(content.doneButton, "more.done");
}

TEST_F(MoreSheetRowsTest, RegionAndTipRowsNameTheirPlace) {
    const MoreSheetContent content = moresheet::moreSheetContent(MoreGestureMap());

    EXPECT_EQ(rowOf(content, MoreGestureSlot::tapLeft).label, "more.tap.left");
    EXPECT_EQ(rowOf(content, MoreGestureSlot::tapRight).label, "more.tap.right");
    EXPECT_EQ(rowOf(content, MoreGestureSlot::tapTop).label, "more.tap.top");
    EXPECT_EQ(rowOf(content, MoreGestureSlot::tipTapLeft).label, "more.tip.left");
    EXPECT_EQ(rowOf(content, MoreGestureSlot::tipTapRight).label, "more.tip.right");
    EXPECT_EQ(rowOf(content, MoreGestureSlot::tapHold).label, "more.hold");
    for (const MoreSheetRow& row : allRows(content)) {
        if (!moreslot::isSwipe(static_cast<MoreGestureSlot>(row.slot))) {
            EXPECT_FALSE(row.group.has_value()) << row.label;
        }
    }
}

TEST_F(MoreSheetRowsTest, SwipeRowsNameTheirDirectionAndEachFingerCountOnItsFirstRow) {
    const MoreSheetContent content = moresheet::moreSheetContent(MoreGestureMap());
    const std::vector<MoreSheetRow>& swipes = content.sections.at(2).rows;

    const std::vector<std::string> directions = {"more.swipe.up", "more.swipe.down",
                                                 "more.swipe.left", "more.swipe.right"};
    const std::vector<std::string> groups = {"1 finger", "2 fingers", "3 fingers"};
    ASSERT_EQ(swipes.size(), 12U);
    for (std::size_t i = 0; i < swipes.size(); ++i) {
        EXPECT_EQ(swipes[i].label, directions[i % 4]);
        if (i % 4 == 0) {
            EXPECT_EQ(swipes[i].group, groups[i / 4]);
        } else {
            EXPECT_FALSE(swipes[i].group.has_value());
        }
        const auto direction = static_cast<SwipeDirection>(i % 4);
        const auto fingers = static_cast<std::int64_t>(i / 4) + 1;
        EXPECT_EQ(swipes[i].slot, static_cast<std::int64_t>(
                                      moreslot::index(moreslot::forSwipe(fingers, direction))));
    }
}

TEST_F(MoreSheetRowsTest, EveryOtherRowOffersTheFifteenInCatalogueOrderWithTheirNames) {
    const MoreSheetContent content = moresheet::moreSheetContent(MoreGestureMap());

    for (const MoreSheetRow& row : allRows(content)) {
        if (row.slot == static_cast<std::int64_t>(moreslot::index(MoreGestureSlot::tapHold))) {
            continue;
        }
        ASSERT_EQ(row.actions.size(), static_cast<std::size_t>(action::count));
        for (std::size_t i = 0; i < row.actions.size(); ++i) {
            EXPECT_EQ(row.actions[i].action, static_cast<ActionIndex>(i));
            EXPECT_EQ(row.actions[i].title, choices().at(i));
        }
    }
}

TEST_F(MoreSheetRowsTest, TapAndHoldOffersTheMiddleClickFirstThenTheOtherButtons) {
    const MoreSheetRow hold =
        rowOf(moresheet::moreSheetContent(MoreGestureMap()), MoreGestureSlot::tapHold);

    EXPECT_EQ(tags(hold), (std::vector<ActionIndex>{
                              action::defaultAction, action::middle, action::left, action::right,
                              action::doubleClick, action::copy, action::paste, action::cut,
                              action::undo, action::redo, action::back, action::forward,
                              action::missionControl, action::showDesktop, action::custom}));
    for (const ActionMenuEntry& entry : hold.actions) {
        EXPECT_EQ(entry.title, choices().at(static_cast<std::size_t>(entry.action)));
    }
    // Unmapped, it still shows the default: the middle click is offered, not chosen.
    EXPECT_EQ(hold.action, action::defaultAction);
}

TEST_F(MoreSheetRowsTest, RowsShowTheStoredActionAndShortcutAsTheGestureRowsDo) {
    MoreGestureMap map;
    const MoreGestureSlot swipe = moreslot::forSwipe(2, SwipeDirection::left);
    map.actions[moreslot::index(swipe)] = action::custom;
    map.shortcuts[moreslot::index(swipe)] = SavedShortcut(40, 0x100000, "⌘K");
    map.actions[moreslot::index(MoreGestureSlot::tipTapLeft)] = action::copy;
    const MoreSheetContent content = moresheet::moreSheetContent(map);

    const MoreSheetRow custom = rowOf(content, swipe);
    EXPECT_EQ(custom.action, action::custom);
    EXPECT_EQ(custom.record,
              (RecordButtonState{.enabled = true, .title = "⌘K", .toolTip = "record.button"}));
    const MoreSheetRow copy = rowOf(content, MoreGestureSlot::tipTapLeft);
    EXPECT_EQ(copy.action, action::copy);
    EXPECT_EQ(copy.record,
              (RecordButtonState{
                  .enabled = false, .title = "record.button", .toolTip = "record.button"}));
}

TEST_F(MoreSheetRowsTest, ARecordedShortcutShowsOnItsButtonEvenWhileAnotherActionIsChosen) {
    MoreGestureMap map;
    map.shortcuts[moreslot::index(MoreGestureSlot::tapTop)] = SavedShortcut(40, 0x100000, "⌘K");
    map.actions[moreslot::index(MoreGestureSlot::tapTop)] = action::undo;

    const MoreSheetRow row = rowOf(moresheet::moreSheetContent(map), MoreGestureSlot::tapTop);
    EXPECT_FALSE(row.record.enabled);
    EXPECT_EQ(row.record.title, "⌘K");
}

TEST_F(MoreSheetRowsTest, OnlyTheRegionSectionShowsTheTopBandWithItsDepthAndRange) {
    MoreGestureMap map;
    map.topBand = 0.4;
    const MoreSheetContent content = moresheet::moreSheetContent(map);

    EXPECT_TRUE(content.sections[0].showsTopBand);
    EXPECT_FALSE(content.sections[1].showsTopBand);
    EXPECT_FALSE(content.sections[2].showsTopBand);
    EXPECT_FALSE(content.sections[3].showsTopBand);
    EXPECT_EQ(content.topBand.label, "more.top.depth");
    EXPECT_DOUBLE_EQ(content.topBand.value, 0.4);
    EXPECT_DOUBLE_EQ(content.topBand.smallest, MoreGestureMap::smallestTopBand);
    EXPECT_DOUBLE_EQ(content.topBand.largest, MoreGestureMap::largestTopBand);
    EXPECT_DOUBLE_EQ(content.topBand.step, moresheet::topBandStep);
}

TEST_F(MoreSheetRowsTest, TopBandStopIsTheNearestStopWithinTheRange) {
    EXPECT_DOUBLE_EQ(*moresheet::topBandStop(0.27), 0.25);
    EXPECT_DOUBLE_EQ(*moresheet::topBandStop(0.33), 0.35);
    EXPECT_DOUBLE_EQ(*moresheet::topBandStop(0.1), 0.1);
    EXPECT_DOUBLE_EQ(*moresheet::topBandStop(0.5), 0.5);
    EXPECT_DOUBLE_EQ(*moresheet::topBandStop(0.02), 0.1);
    EXPECT_DOUBLE_EQ(*moresheet::topBandStop(0.9), 0.5);
    EXPECT_DOUBLE_EQ(*moresheet::topBandStop(-1), 0.1);
    EXPECT_DOUBLE_EQ(*moresheet::topBandStop(std::numeric_limits<double>::infinity()), 0.5);
    EXPECT_FALSE(moresheet::topBandStop(std::numeric_limits<double>::quiet_NaN()).has_value());
}

TEST_F(MoreSheetRowsTest, EveryStopIsAMultipleOfTheStepFromTheSmallest) {
    for (double depth = 0; depth <= 0.6; depth += 0.01) {
        const double stop = *moresheet::topBandStop(depth);
        const double steps = (stop - MoreGestureMap::smallestTopBand) / moresheet::topBandStep;
        EXPECT_NEAR(steps, std::round(steps), 1e-9) << depth;
        EXPECT_LE(std::abs(stop - std::clamp(depth, MoreGestureMap::smallestTopBand,
                                             MoreGestureMap::largestTopBand)),
                  moresheet::topBandStep / 2 + 1e-9)
            << depth;
    }
}

}  // namespace
}  // namespace tactora::testing
