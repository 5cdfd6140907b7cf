#include <gtest/gtest.h>

#include <vector>

#include "Touches.h"

namespace tactora {
namespace {

using testing::Frame;
using testing::gestureOf;
using testing::lifted;
using testing::only;
using testing::Touches;

const auto bothSides = only({MoreGestureSlot::tipTapLeft, MoreGestureSlot::tipTapRight});

Finger resting(double x = 0.5, double y = 0.5) {
    return {1, x, y};
}

// Finger 1 rests from t = 1.0; a second finger (id 2) at `x` lands at `down` and lifts at `up`;
// finger 1 lifts at 2.0. Frames every 10 ms.
void tipTap(Touches& touches, double x, double down, double up) {
    for (int step = 0; step < 100; ++step) {
        const double t = 1.0 + step * 0.01;
        const bool second = t >= down && t < up;
        touches.at(t, second ? Frame{resting(), {2, x, 0.5}} : Frame{resting()});
    }
    touches.at(2.0, lifted);
}

TEST(TipTap, SecondFingerTappingLeftOfTheRestingOneIsALeftTipTap) {
    Touches touches(bothSides);
    tipTap(touches, 0.3, 1.4, 1.5);
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::tipTapLeft)});
}

TEST(TipTap, SecondFingerTappingRightOfTheRestingOneIsARightTipTap) {
    Touches touches(bothSides);
    tipTap(touches, 0.7, 1.4, 1.5);
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::tipTapRight)});
}

TEST(TipTap, TheRestingFingersLiftIsNoTapOfAnyKind) {
    Touches touches(bothSides);
    tipTap(touches, 0.3, 1.4, 1.5);
    EXPECT_TRUE(touches.plainTaps.empty());
    EXPECT_EQ(touches.events.size(), 1U);
}

TEST(TipTap, IsRecognisedWhenTheTappingFingerLiftsWhileTheOtherStillRests) {
    Touches touches(bothSides);
    touches.at(1.0, {resting()});
    touches.at(1.4, {resting(), {2, 0.3, 0.5}});
    EXPECT_EQ(touches.at(1.5, {resting()}), gestureOf(MoreGestureSlot::tipTapLeft));
}

TEST(TipTap, OnlyTheMappedSideIsRecognised) {
    Touches touches(only({MoreGestureSlot::tipTapLeft}));
    tipTap(touches, 0.7, 1.4, 1.5);
    EXPECT_TRUE(touches.events.empty());
}

TEST(TipTap, RestingForLessThanTheLongestTapIsATwoFingerTouchInstead) {
    Touches touches(bothSides);
    tipTap(touches, 0.3, 1.28, 1.38);
    EXPECT_TRUE(touches.events.empty());
    Touches justLongEnough(bothSides);
    tipTap(justLongEnough, 0.3, 1.31, 1.41);
    EXPECT_EQ(justLongEnough.events.size(), 1U);
}

TEST(TipTap, TappingFingerMustStayAsLongAsATapAndNoLonger) {
    Touches noise(bothSides);
    tipTap(noise, 0.3, 1.4, 1.42);
    EXPECT_TRUE(noise.events.empty());
    Touches press(bothSides);
    tipTap(press, 0.3, 1.4, 1.72);
    EXPECT_TRUE(press.events.empty());
    Touches shortest(bothSides);
    tipTap(shortest, 0.3, 1.4, 1.44);
    EXPECT_EQ(shortest.events.size(), 1U);
    Touches longest(bothSides);
    tipTap(longest, 0.3, 1.4, 1.69);
    EXPECT_EQ(longest.events.size(), 1U);
}

TEST(TipTap, TappingFingerThatSlidesIsNoTipTap) {
    Touches touches(bothSides);
    touches.at(1.0, {resting()});
    touches.at(1.4, {resting(), {2, 0.3, 0.5}});
    touches.at(1.45, {resting(), {2, 0.3, 0.56}});
    EXPECT_EQ(touches.at(1.5, {resting()}), std::nullopt);
}

TEST(TipTap, TappingFingerWithinTheToleranceStillCounts) {
    Touches touches(bothSides);
    touches.at(1.0, {resting()});
    touches.at(1.4, {resting(), {2, 0.3, 0.5}});
    touches.at(1.45, {resting(), {2, 0.3, 0.54}});
    EXPECT_EQ(touches.at(1.5, {resting()}), gestureOf(MoreGestureSlot::tipTapLeft));
}

TEST(TipTap, RestingFingerThatMovesEndsTipTapsForTheTouch) {
    Touches touches(bothSides);
    touches.at(1.0, {resting()});
    touches.at(1.2, {resting(0.5, 0.6)});
    touches.at(1.3, {resting(0.5, 0.5)});  // back where it was: still not resting
    touches.at(1.4, {resting(), {2, 0.3, 0.5}});
    EXPECT_EQ(touches.at(1.5, {resting()}), std::nullopt);
}

TEST(TipTap, ThirdFingerDuringTheTapSpoilsIt) {
    Touches touches(bothSides);
    touches.at(1.0, {resting()});
    touches.at(1.4, {resting(), {2, 0.3, 0.5}});
    touches.at(1.42, {resting(), {2, 0.3, 0.5}, {3, 0.8, 0.5}});
    touches.at(1.45, {resting(), {2, 0.3, 0.5}});
    EXPECT_EQ(touches.at(1.5, {resting()}), std::nullopt);
    // The resting finger is alone again: the next tap counts.
    touches.at(1.6, {resting(), {4, 0.7, 0.5}});
    EXPECT_EQ(touches.at(1.7, {resting()}), gestureOf(MoreGestureSlot::tipTapRight));
}

TEST(TipTap, EveryTapWhileTheFingerKeepsRestingIsOneTipTap) {
    Touches touches(bothSides);
    touches.at(1.0, {resting()});
    touches.at(1.4, {resting(), {2, 0.3, 0.5}});
    touches.at(1.5, {resting()});
    touches.at(1.6, {resting(), {3, 0.7, 0.5}});
    touches.at(1.7, {resting()});
    touches.at(2.0, lifted);
    EXPECT_EQ(touches.events, (std::vector{gestureOf(MoreGestureSlot::tipTapLeft),
                                           gestureOf(MoreGestureSlot::tipTapRight)}));
}

TEST(TipTap, PhysicalClickDuringTheTapSpoilsItAndTheRestOfTheTouch) {
    Touches touches(bothSides);
    touches.at(1.0, {resting()});
    touches.at(1.4, {resting(), {2, 0.3, 0.5}});
    touches.taps.physicalClick();
    touches.more.physicalClick();
    touches.at(1.5, {resting()});
    touches.at(1.6, {resting(), {3, 0.3, 0.5}});
    touches.at(1.7, {resting()});
    touches.at(2.0, lifted);
    EXPECT_TRUE(touches.events.empty());
}

TEST(TipTap, FingersThatLandTogetherHaveNoRestingFinger) {
    Touches touches(bothSides);
    touches.at(1.0, {resting(), {2, 0.3, 0.5}});
    touches.at(1.4, {resting()});
    touches.at(1.5, {resting(), {3, 0.3, 0.5}});
    touches.at(1.6, {resting()});
    touches.at(2.0, lifted);
    EXPECT_TRUE(touches.events.empty());
}

TEST(TipTap, RestingFingerLiftingFirstLeavesNoTipTap) {
    Touches touches(bothSides);
    touches.at(1.0, {resting()});
    touches.at(1.4, {resting(), {2, 0.3, 0.5}});
    touches.at(1.45, {{2, 0.3, 0.5}});
    touches.at(1.5, lifted);
    EXPECT_TRUE(touches.events.empty());
    EXPECT_TRUE(touches.plainTaps.empty());
}

TEST(TipTap, UnmappedTipTapsChangeNothingOfTheSameTouch) {
    Touches touches(MoreGestureSettings{});
    tipTap(touches, 0.3, 1.4, 1.5);
    EXPECT_TRUE(touches.events.empty());
    EXPECT_TRUE(touches.plainTaps.empty());
}

}  // namespace
}  // namespace tactora
