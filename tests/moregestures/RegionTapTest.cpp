#include "core/moregestures/RegionTap.h"

#include <gtest/gtest.h>

#include <limits>

#include "Touches.h"

namespace tactora {
namespace {

using testing::gestureOf;
using testing::only;
using testing::Touches;

TEST(RegionTap, NothingMappedLeavesEveryTapPlain) {
    const MoreGestureSettings none;
    EXPECT_EQ(regionTapSlot(0.1, 0.1, none), std::nullopt);
    EXPECT_EQ(regionTapSlot(0.9, 0.95, none), std::nullopt);
}

TEST(RegionTap, HalvesSplitAtTheMiddle) {
    const auto halves = only({MoreGestureSlot::tapLeft, MoreGestureSlot::tapRight});
    EXPECT_EQ(regionTapSlot(0.0, 0.5, halves), MoreGestureSlot::tapLeft);
    EXPECT_EQ(regionTapSlot(0.4999, 0.5, halves), MoreGestureSlot::tapLeft);
    EXPECT_EQ(regionTapSlot(0.5, 0.5, halves), MoreGestureSlot::tapRight);
    EXPECT_EQ(regionTapSlot(1.0, 0.5, halves), MoreGestureSlot::tapRight);
}

TEST(RegionTap, OnlyTheMappedHalfTakesItsTaps) {
    const auto left = only({MoreGestureSlot::tapLeft});
    EXPECT_EQ(regionTapSlot(0.2, 0.5, left), MoreGestureSlot::tapLeft);
    EXPECT_EQ(regionTapSlot(0.8, 0.5, left), std::nullopt);
}

TEST(RegionTap, TopBandReachesItsDepthFromTheFrontEdgeInclusive) {
    auto top = only({MoreGestureSlot::tapTop});
    top.topBand = 0.25;
    EXPECT_EQ(regionTapSlot(0.5, 0.75, top), MoreGestureSlot::tapTop);
    EXPECT_EQ(regionTapSlot(0.5, 0.7499, top), std::nullopt);
    EXPECT_EQ(regionTapSlot(0.5, 1.0, top), MoreGestureSlot::tapTop);
    top.topBand = 0.5;
    EXPECT_EQ(regionTapSlot(0.5, 0.5, top), MoreGestureSlot::tapTop);
}

TEST(RegionTap, MappedTopBandWinsOverTheHalfBelowIt) {
    const auto all =
        only({MoreGestureSlot::tapLeft, MoreGestureSlot::tapRight, MoreGestureSlot::tapTop});
    EXPECT_EQ(regionTapSlot(0.1, 0.9, all), MoreGestureSlot::tapTop);
    EXPECT_EQ(regionTapSlot(0.1, 0.5, all), MoreGestureSlot::tapLeft);
}

TEST(RegionTap, UnmappedTopBandLeavesItsTapsToTheHalves) {
    const auto halves = only({MoreGestureSlot::tapLeft, MoreGestureSlot::tapRight});
    EXPECT_EQ(regionTapSlot(0.9, 0.95, halves), MoreGestureSlot::tapRight);
}

TEST(RegionTap, PositionThatIsNotANumberIsInNoRegion) {
    const auto all =
        only({MoreGestureSlot::tapLeft, MoreGestureSlot::tapRight, MoreGestureSlot::tapTop});
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(regionTapSlot(nan, 0.5, all), std::nullopt);
    EXPECT_EQ(regionTapSlot(0.5, nan, all), std::nullopt);
}

// Through the recognisers: the tap recogniser still decides that it is a tap; the region only
// names the slot.
TEST(RegionTap, OneFingerTapInAMappedRegionIsOfferedAsThatRegion) {
    Touches touches(only({MoreGestureSlot::tapLeft}));
    touches.oneFingerTouch(1.0, 1.15, 0.2, 0.5);
    EXPECT_EQ(touches.plainTaps, std::vector<std::int64_t>{1});
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::tapLeft)});
}

TEST(RegionTap, TapOutsideEveryMappedRegionStaysPlain) {
    Touches touches(only({MoreGestureSlot::tapLeft}));
    touches.oneFingerTouch(1.0, 1.15, 0.8, 0.5);
    EXPECT_EQ(touches.plainTaps, std::vector<std::int64_t>{1});
    EXPECT_TRUE(touches.events.empty());
}

TEST(RegionTap, TheRegionIsWhereTheFingerLanded) {
    Touches touches(only({MoreGestureSlot::tapLeft}));
    touches.at(1.0, {{1, 0.48, 0.5}});
    touches.at(1.05, {{1, 0.52, 0.5}});  // within the tap's tolerance, across the middle
    touches.at(1.1, testing::lifted);
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::tapLeft)});
}

TEST(RegionTap, TooShortTooLongOrMovedTouchesAreNoRegionTaps) {
    Touches touches(only({MoreGestureSlot::tapLeft}));
    touches.oneFingerTouch(1.0, 1.01, 0.2, 0.5);  // noise
    touches.oneFingerTouch(2.0, 2.5, 0.2, 0.5);   // a rest
    touches.at(3.0, {{1, 0.2, 0.5}});
    touches.at(3.05, {{1, 0.3, 0.5}});  // moved
    touches.at(3.1, testing::lifted);
    EXPECT_TRUE(touches.plainTaps.empty());
    EXPECT_TRUE(touches.events.empty());
}

TEST(RegionTap, TwoFingerTapIsNeverARegionTap) {
    Touches touches(only({MoreGestureSlot::tapLeft, MoreGestureSlot::tapRight}));
    touches.at(1.0, {{1, 0.2, 0.5}, {2, 0.8, 0.5}});
    touches.at(1.15, testing::lifted);
    EXPECT_EQ(touches.plainTaps, std::vector<std::int64_t>{2});
    EXPECT_TRUE(touches.events.empty());
}

TEST(RegionTap, ClickDuringTheTouchLeavesNoTapToOffer) {
    Touches touches(only({MoreGestureSlot::tapLeft}));
    touches.at(1.0, {{1, 0.2, 0.5}});
    touches.taps.physicalClick();
    touches.more.physicalClick();
    touches.at(1.1, testing::lifted);
    EXPECT_TRUE(touches.plainTaps.empty());
    EXPECT_TRUE(touches.events.empty());
}

}  // namespace
}  // namespace tactora
