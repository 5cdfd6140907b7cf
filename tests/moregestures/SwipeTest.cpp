#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "Touches.h"

namespace tactora {
namespace {

using testing::Frame;
using testing::gestureOf;
using testing::lifted;
using testing::only;
using testing::Touches;

// `fingers` fingers side by side (0.1 apart, starting at x = 0.3, y = 0.4), all moved by
// (dx, dy).
Frame hand(std::int64_t fingers, double dx = 0, double dy = 0) {
    Frame frame;
    for (std::int64_t id = 1; id <= fingers; ++id) {
        frame.emplace_back(id, 0.3 + 0.1 * static_cast<double>(id - 1) + dx, 0.4 + dy);
    }
    return frame;
}

// The hand lands at t = 1.0 and moves in `steps` even steps of 10 ms to (dx, dy); nothing lifts.
void slide(Touches& touches, std::int64_t fingers, double dx, double dy, int steps = 10) {
    for (int step = 0; step <= steps; ++step) {
        const double share = static_cast<double>(step) / steps;
        touches.at(1.0 + step * 0.01, hand(fingers, dx * share, dy * share));
    }
}

TEST(Swipe, EveryFingerCountAndDirectionHasItsOwnSlot) {
    struct Move {
        SwipeDirection direction;
        double dx;
        double dy;
    };
    const Move moves[] = {{SwipeDirection::up, 0, 0.2},
                          {SwipeDirection::down, 0, -0.2},
                          {SwipeDirection::left, -0.2, 0},
                          {SwipeDirection::right, 0.2, 0}};
    for (std::int64_t fingers = 1; fingers <= 3; ++fingers) {
        for (const Move& move : moves) {
            Touches touches(MoreGestureSettings::all());
            slide(touches, fingers, move.dx, move.dy);
            touches.at(1.2, lifted);
            const MoreGestureSlot slot = moreslot::forSwipe(fingers, move.direction);
            EXPECT_EQ(touches.events, std::vector{gestureOf(slot)}) << moreslot::name(slot);
        }
    }
}

TEST(Swipe, IsRecognisedWhileTheFingersMoveOnTheFrameThatCompletesTheDistance) {
    Touches touches(only({MoreGestureSlot::swipe2Left}));
    touches.at(1.0, hand(2));
    EXPECT_EQ(touches.at(1.05, hand(2, -0.1)), std::nullopt);
    EXPECT_EQ(touches.at(1.1, hand(2, -0.16)), gestureOf(MoreGestureSlot::swipe2Left));
}

TEST(Swipe, ScrollIsSwallowedFromRecognitionUntilTheFingersLift) {
    Touches touches(only({MoreGestureSlot::swipe2Left}));
    touches.at(1.0, hand(2));
    touches.at(1.05, hand(2, -0.1));
    EXPECT_FALSE(touches.more.swallowsScroll());
    touches.at(1.1, hand(2, -0.16));
    EXPECT_TRUE(touches.more.swallowsScroll());
    touches.at(1.3, hand(1, -0.3));
    EXPECT_TRUE(touches.more.swallowsScroll());
    touches.at(1.4, lifted);
    EXPECT_FALSE(touches.more.swallowsScroll());
}

TEST(Swipe, IsPerformedOncePerSwipeWhateverFollows) {
    Touches touches(MoreGestureSettings::all());
    slide(touches, 2, -0.2, 0);
    touches.at(1.15, hand(2, -0.4));
    touches.at(1.2, hand(2, 0.2));  // and back the other way
    touches.at(1.25, hand(3, 0.2));
    touches.at(1.3, hand(3, 0.5));  // a third finger joins and they all move on
    touches.at(1.4, lifted);
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::swipe2Left)});
}

TEST(Swipe, DistanceLimitIsInclusive) {
    Touches under(MoreGestureSettings::all());
    under.at(1.0, {{1, 0.25, 0.5}});
    under.at(1.1, {{1, 0.399, 0.5}});
    EXPECT_TRUE(under.events.empty());
    Touches at(MoreGestureSettings::all());
    at.at(1.0, {{1, 0.25, 0.5}});
    at.at(1.1, {{1, 0.4, 0.5}});
    EXPECT_EQ(at.events, std::vector{gestureOf(MoreGestureSlot::swipe1Right)});
}

TEST(Swipe, DistanceMustBeCoveredWithinTheTime) {
    Touches slow(MoreGestureSettings::all());
    slow.at(1.0, hand(1));
    slow.at(1.3, hand(1, 0.1));
    slow.at(1.51, hand(1, 0.2));
    EXPECT_TRUE(slow.events.empty());
    Touches quick(MoreGestureSettings::all());
    quick.at(1.0, hand(1));
    quick.at(1.3, hand(1, 0.1));
    quick.at(1.49, hand(1, 0.2));
    EXPECT_EQ(quick.events, std::vector{gestureOf(MoreGestureSlot::swipe1Right)});
}

TEST(Swipe, FingersMustMoveTogether) {
    Touches oneMoves(MoreGestureSettings::all());
    oneMoves.at(1.0, {{1, 0.3, 0.4}, {2, 0.6, 0.4}});
    oneMoves.at(1.1, {{1, 0.3, 0.4}, {2, 0.6, 0.7}});
    EXPECT_TRUE(oneMoves.events.empty());
    Touches apart(MoreGestureSettings::all());
    apart.at(1.0, {{1, 0.4, 0.4}, {2, 0.6, 0.4}});
    apart.at(1.1, {{1, 0.2, 0.4}, {2, 0.8, 0.4}});  // spreading, not swiping
    EXPECT_TRUE(apart.events.empty());
}

TEST(Swipe, DirectionIsTheAxisTheFingersMovedMostAlong) {
    Touches touches(MoreGestureSettings::all());
    touches.at(1.0, hand(1));
    touches.at(1.1, hand(1, 0.12, 0.2));
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::swipe1Up)});
}

TEST(Swipe, FingersLandingApartSwipeTogetherFromWhenTheLastLanded) {
    Touches touches(MoreGestureSettings::all());
    touches.at(1.0, {{1, 0.3, 0.4}});
    touches.at(1.04, {{1, 0.32, 0.4}});
    touches.at(1.06, {{1, 0.33, 0.4}, {2, 0.5, 0.4}});  // the second finger lands
    touches.at(1.1, {{1, 0.43, 0.4}, {2, 0.6, 0.4}});
    touches.at(1.14, {{1, 0.5, 0.4}, {2, 0.67, 0.4}});
    touches.at(1.3, lifted);
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::swipe2Right)});
}

TEST(Swipe, MoreThanThreeFingersNeverSwipe) {
    Touches touches(MoreGestureSettings::all());
    slide(touches, 4, 0.3, 0);
    EXPECT_TRUE(touches.events.empty());
    EXPECT_FALSE(touches.more.swallowsScroll());
}

TEST(Swipe, PhysicalClickBeforeTheDistanceEndsSwipesForTheTouch) {
    Touches touches(MoreGestureSettings::all());
    touches.at(1.0, hand(2));
    touches.at(1.05, hand(2, 0.05));
    touches.more.physicalClick();
    touches.at(1.1, hand(2, 0.2));
    EXPECT_TRUE(touches.events.empty());
    EXPECT_FALSE(touches.more.swallowsScroll());
}

TEST(Swipe, PhysicalClickAfterTheSwipeKeepsTheScrollSwallowedUntilTheLift) {
    Touches touches(MoreGestureSettings::all());
    slide(touches, 2, 0.2, 0);
    touches.more.physicalClick();
    EXPECT_TRUE(touches.more.swallowsScroll());
    touches.at(1.3, lifted);
    EXPECT_FALSE(touches.more.swallowsScroll());
}

TEST(Swipe, UnmappedFingerCountIsNeverRecognisedNorSwallowed) {
    Touches touches(only({MoreGestureSlot::swipe2Left}));
    slide(touches, 1, -0.3, 0);
    EXPECT_TRUE(touches.events.empty());
    EXPECT_FALSE(touches.more.swallowsScroll());
    // ... and it does not use up the touch: a second finger lands and the two swipe.
    touches.at(1.2, {{1, 0.0, 0.4}, {2, 0.3, 0.4}});
    touches.at(1.3, {{1, -0.2, 0.4}, {2, 0.1, 0.4}});
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::swipe2Left)});
}

TEST(Swipe, UnmappedDirectionOfAMappedCountIsTheTouchesOneSwipeAndSwallowsNothing) {
    Touches touches(only({MoreGestureSlot::swipe2Left}));
    slide(touches, 2, 0.2, 0);
    EXPECT_FALSE(touches.more.swallowsScroll());
    touches.at(1.2, hand(2, -0.2));
    touches.at(1.25, hand(2, -0.4));
    EXPECT_TRUE(touches.events.empty());
    EXPECT_FALSE(touches.more.swallowsScroll());
}

TEST(Swipe, NothingMappedMeansNoSwipeAndNoSwallowing) {
    Touches touches(MoreGestureSettings{});
    slide(touches, 2, -0.3, 0);
    EXPECT_TRUE(touches.events.empty());
    EXPECT_FALSE(touches.more.swallowsScroll());
}

TEST(Swipe, IsNeverAlsoATap) {
    Touches touches(MoreGestureSettings::all());
    slide(touches, 1, 0.2, 0);
    touches.at(1.15, lifted);
    EXPECT_TRUE(touches.plainTaps.empty());
    EXPECT_EQ(touches.events.size(), 1U);
}

}  // namespace
}  // namespace tactora
