#include "core/gestures/GestureState.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <random>
#include <vector>

namespace tactora {
namespace {

using Frame = std::vector<Finger>;

Finger finger(std::int64_t id, double x = 0.5, double y = 0.5) {
    return {id, x, y};
}

Frame fingers(std::int64_t n) {
    Frame frame;
    for (std::int64_t id = 1; id <= n; ++id) {
        frame.push_back(finger(id));
    }
    return frame;
}

const Frame lifted;

TEST(GestureState, StartsIdleWithNothingSeen) {
    const GestureState state;
    EXPECT_EQ(state.count, 0);
    EXPECT_FALSE(state.began.has_value());
    EXPECT_EQ(state.peak, 0);
    EXPECT_TRUE(state.origins.empty());
    EXPECT_FALSE(state.moved);
    EXPECT_FALSE(state.clicked);
    EXPECT_FALSE(state.invalid);
}

TEST(GestureState, TapsOfOneToFourFingersReportTheirFingerCount) {
    for (std::int64_t n = 1; n <= 4; ++n) {
        SCOPED_TRACE(n);
        GestureState state;
        EXPECT_EQ(state.update(fingers(n), 1.0), std::nullopt);
        EXPECT_EQ(state.update(lifted, 1.15), n);
    }
}

TEST(GestureState, PhysicalClickDuringTouchIsNotAlsoATap) {
    GestureState state;
    state.update(fingers(1), 2.0);
    state.physicalClick();
    EXPECT_EQ(state.update(lifted, 2.15), std::nullopt);
}

TEST(GestureState, FingerMovingBeyondToleranceIsNoTap) {
    GestureState state;
    state.update(Frame{finger(1)}, 1.0);
    state.update(Frame{finger(1, 0.6)}, 1.1);
    EXPECT_TRUE(state.moved);
    EXPECT_EQ(state.update(lifted, 1.2), std::nullopt);
}

TEST(GestureState, TouchLongerThanLongestTapIsNoTap) {
    GestureState state;
    state.update(Frame{finger(1)}, 2.0);
    EXPECT_EQ(state.update(lifted, 3.0), std::nullopt);
}

TEST(GestureState, FiveFingersAreNoTap) {
    GestureState state;
    state.update(fingers(5), 4.0);
    EXPECT_TRUE(state.invalid);
    EXPECT_EQ(state.update(lifted, 4.1), std::nullopt);
}

TEST(GestureState, GradualReleaseReportsThePeakFingerCount) {
    GestureState state;
    EXPECT_EQ(state.update(Frame{finger(1)}, 5.0), std::nullopt);
    EXPECT_EQ(state.update(Frame{finger(1), finger(2)}, 5.04), std::nullopt);
    EXPECT_EQ(state.update(Frame{finger(1)}, 5.1), std::nullopt);
    EXPECT_EQ(state.update(lifted, 5.16), 2);
}

TEST(GestureState, TouchShorterThanShortestTapIsNoise) {
    GestureState state;
    state.update(Frame{finger(1)}, 6.0);
    EXPECT_EQ(state.update(lifted, 6.01), std::nullopt);
}

TEST(GestureState, EmptyFrameWhileIdleYieldsNothingAndClearsStrayClick) {
    GestureState state;
    state.physicalClick();
    EXPECT_EQ(state.update(lifted, 1.0), std::nullopt);
    EXPECT_EQ(state, GestureState());
}

TEST(GestureState, DurationOfExactlyShortestTapQualifies) {
    GestureState state;
    state.update(fingers(1), 0.0);
    EXPECT_EQ(state.update(lifted, GestureState::shortestTap), 1);
}

TEST(GestureState, DurationOfExactlyLongestTapQualifies) {
    GestureState state;
    state.update(fingers(3), 0.0);
    EXPECT_EQ(state.update(lifted, GestureState::longestTap), 3);
}

TEST(GestureState, DurationJustBeyondLongestTapIsNoTap) {
    GestureState state;
    state.update(fingers(1), 0.0);
    EXPECT_EQ(state.update(lifted, 0.30001), std::nullopt);
}

TEST(GestureState, DisplacementOfExactlyToleranceIsNotMovement) {
    GestureState state;
    state.update(Frame{finger(1, 0.0, 0.5)}, 1.0);
    state.update(Frame{finger(1, GestureState::movementTolerance, 0.5)}, 1.05);
    EXPECT_FALSE(state.moved);
    EXPECT_EQ(state.update(lifted, 1.1), 1);
}

TEST(GestureState, DisplacementJustBeyondToleranceIsMovement) {
    GestureState state;
    state.update(Frame{finger(1, 0.0, 0.5)}, 1.0);
    state.update(Frame{finger(1, 0.0451, 0.5)}, 1.05);
    EXPECT_TRUE(state.moved);
}

// The hypotenuse decides, to the last bit, however the distance is computed: displacements a
// few units in the last place either side of the tolerance, in every direction, from origins
// anywhere on the surface.
TEST(GestureState, MovementNearTheToleranceIsDecidedByTheHypotenuse) {
    std::mt19937_64 random(45);
    std::uniform_real_distribution<double> angle(0.0, 2 * std::numbers::pi);
    std::uniform_real_distribution<double> place(0.0, 1.0);
    std::uniform_int_distribution<int> ulps(-8, 8);
    int moves = 0;
    for (int i = 0; i < 20000; ++i) {
        double length = GestureState::movementTolerance;
        for (int step = ulps(random); step != 0; step += step > 0 ? -1 : 1) {
            length = std::nextafter(length, step > 0 ? 1.0 : 0.0);
        }
        const double direction = angle(random);
        const Finger origin = finger(1, place(random), place(random));
        const Finger moved = finger(1, origin.x + length * std::cos(direction),
                                    origin.y + length * std::sin(direction));
        GestureState state;
        state.update(Frame{origin}, 1.0);
        state.update(Frame{moved}, 1.05);
        const bool expected =
            std::hypot(moved.x - origin.x, moved.y - origin.y) > GestureState::movementTolerance;
        ASSERT_EQ(state.moved, expected)
            << "displacement " << moved.x - origin.x << ", " << moved.y - origin.y;
        moves += expected ? 1 : 0;
    }
    // Both outcomes occur, so the boundary was really probed.
    EXPECT_GT(moves, 1000);
    EXPECT_LT(moves, 19000);
}

TEST(GestureState, MovementIsEuclidean) {
    GestureState state;
    state.update(Frame{finger(1, 0.5, 0.5)}, 1.0);
    // 0.04 along each axis: no single axis exceeds the tolerance, the distance (0.0566) does.
    state.update(Frame{finger(1, 0.54, 0.54)}, 1.05);
    EXPECT_TRUE(state.moved);
}

TEST(GestureState, ClickBeforeFirstFingerDoesNotSpoilTheFollowingTap) {
    GestureState state;
    state.physicalClick();
    state.update(fingers(2), 1.0);
    EXPECT_FALSE(state.clicked);
    EXPECT_EQ(state.update(lifted, 1.1), 2);
}

TEST(GestureState, FiveFingersDroppingBackToFourStillSpoilTheSequence) {
    GestureState state;
    state.update(fingers(5), 1.0);
    state.update(fingers(4), 1.05);
    EXPECT_EQ(state.update(lifted, 1.1), std::nullopt);
}

TEST(GestureState, CountFollowsEveryFrame) {
    GestureState state;
    state.update(fingers(3), 1.0);
    EXPECT_EQ(state.count, 3);
    state.update(fingers(1), 1.01);
    EXPECT_EQ(state.count, 1);
    EXPECT_EQ(state.peak, 3);
    state.update(lifted, 1.02);
    EXPECT_EQ(state.count, 0);
}

TEST(GestureState, FirstNonEmptyFrameStartsTheSequence) {
    GestureState state;
    state.update(fingers(1), 7.5);
    state.update(fingers(2), 7.6);
    EXPECT_EQ(state.began, 7.5);
}

TEST(GestureState, SlowDriftAccumulatesFromTheFirstOrigin) {
    GestureState state;
    double x = 0.5;
    state.update(Frame{finger(1, x)}, 1.0);
    // Each step is small; together they leave the tolerance behind.
    for (int step = 1; step <= 5; ++step) {
        x += 0.01;
        state.update(Frame{finger(1, x)}, 1.0 + 0.01 * step);
    }
    EXPECT_TRUE(state.moved);
    EXPECT_EQ(state.update(lifted, 1.1), std::nullopt);
}

TEST(GestureState, FingerReturningWithTheSameIdIsComparedWithItsFirstOrigin) {
    GestureState state;
    state.update(Frame{finger(1, 0.2), finger(2, 0.8)}, 1.0);
    state.update(Frame{finger(2, 0.8)}, 1.05);
    state.update(Frame{finger(1, 0.3), finger(2, 0.8)}, 1.1);
    EXPECT_TRUE(state.moved);
}

TEST(GestureState, NewIdGetsAnOriginOfItsOwn) {
    GestureState state;
    state.update(Frame{finger(1, 0.2)}, 1.0);
    state.update(Frame{finger(2, 0.8)}, 1.05);
    EXPECT_FALSE(state.moved);
    EXPECT_EQ(state.origins.size(), 2U);
    EXPECT_EQ(state.update(lifted, 1.1), 1);
}

TEST(GestureState, NotANumberDistanceNeverCountsAsMovement) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    GestureState state;
    state.update(Frame{finger(1, nan, 0.5)}, 1.0);
    state.update(Frame{finger(1, 0.9, 0.5)}, 1.05);
    state.update(Frame{finger(2, 0.5, 0.5)}, 1.06);
    state.update(Frame{finger(2, nan, nan)}, 1.07);
    EXPECT_FALSE(state.moved);
    EXPECT_EQ(state.update(lifted, 1.1), 1);
}

TEST(GestureState, MovementStaysSetWhenTheFingerComesBack) {
    GestureState state;
    state.update(Frame{finger(1, 0.5)}, 1.0);
    state.update(Frame{finger(1, 0.7)}, 1.05);
    state.update(Frame{finger(1, 0.5)}, 1.1);
    EXPECT_TRUE(state.moved);
    EXPECT_EQ(state.update(lifted, 1.15), std::nullopt);
}

TEST(GestureState, EmptyFrameEndsEverySequenceWithAFreshState) {
    GestureState tapped;
    tapped.update(fingers(2), 1.0);
    EXPECT_EQ(tapped.update(lifted, 1.1), 2);
    EXPECT_EQ(tapped, GestureState());

    GestureState spoiled;
    spoiled.update(fingers(5), 1.0);
    spoiled.physicalClick();
    spoiled.update(Frame{finger(1, 0.9)}, 1.05);
    EXPECT_EQ(spoiled.update(lifted, 2.0), std::nullopt);
    EXPECT_EQ(spoiled, GestureState());
}

TEST(GestureState, SequenceAfterASpoiledOneIsJudgedOnItsOwn) {
    GestureState state;
    state.update(fingers(1), 1.0);
    state.physicalClick();
    EXPECT_EQ(state.update(lifted, 1.1), std::nullopt);
    state.update(fingers(1), 2.0);
    EXPECT_EQ(state.update(lifted, 2.1), 1);
}

TEST(GestureState, ResetReturnsToTheInitialState) {
    GestureState state;
    state.update(fingers(5), 1.0);
    state.update(Frame{finger(1, 0.9)}, 1.05);
    state.physicalClick();
    state.reset();
    EXPECT_EQ(state, GestureState());
    EXPECT_FALSE(state.began.has_value());
    EXPECT_TRUE(state.origins.empty());
}

// A frame may carry any ids; one that can't be a tap's keeps no origins, so it costs nothing
// per id however many there are.
TEST(GestureState, ACrowdedFrameKeepsNoOriginsWhateverItsIds) {
    Frame crowd;
    for (std::int64_t id = 0; id < 100'000; ++id) {
        crowd.push_back(finger(id * 7919, 0.5));
    }
    GestureState state;
    state.update(crowd, 1.0);
    EXPECT_TRUE(state.invalid);
    EXPECT_EQ(state.origins.size(), 0U);
    state.update(crowd, 1.05);
    EXPECT_EQ(state.origins.size(), 0U);
    EXPECT_EQ(state.update(lifted, 1.1), std::nullopt);
}

TEST(GestureState, AFrameAfterTheCrowdIsNotLookedUpEither) {
    GestureState state;
    state.update(fingers(1), 1.0);
    state.update(fingers(5), 1.02);
    const std::size_t kept = state.origins.size();
    state.update(Frame{finger(99, 0.5)}, 1.04);
    EXPECT_EQ(state.origins.size(), kept);
    EXPECT_EQ(state.update(lifted, 1.1), std::nullopt);
}

// Fingers that keep landing with new ids within one sequence: each lookup still compares at most
// a frame's worth of ids one by one, and every first origin is still kept.
TEST(GestureState, NewIdsWithoutEndKeepEachLookupShort) {
    GestureState state;
    constexpr std::int64_t frames = 10'000;
    for (std::int64_t frame = 0; frame < frames; ++frame) {
        const std::int64_t first = frame * 4;
        state.update(Frame{finger(first, 0.5), finger(first + 1, 0.5), finger(first + 2, 0.5),
                           finger(first + 3, 0.5)},
                     1.0);
        ASSERT_LE(state.origins.listedSize(), FingerOrigins::listed);
    }
    EXPECT_EQ(state.origins.size(), static_cast<std::size_t>(frames * 4));
    EXPECT_FALSE(state.moved);
    // An id seen long ago is still compared with where it first landed.
    state.update(Frame{finger(frames * 2, 0.6)}, 1.05);
    EXPECT_TRUE(state.moved);
    EXPECT_EQ(state.update(lifted, 1.1), std::nullopt);
}

TEST(GestureState, ResetDropsAHalfSeenTouch) {
    GestureState state;
    state.update(fingers(2), 1.0);
    state.reset();
    // Without a sequence start the empty frame has nothing to report.
    EXPECT_EQ(state.update(lifted, 1.1), std::nullopt);
}

TEST(GestureState, PhysicalClickOnlyMarksTheSequence) {
    GestureState state;
    state.update(fingers(2), 1.0);
    GestureState expected = state;
    expected.clicked = true;
    state.physicalClick();
    EXPECT_EQ(state, expected);
}

TEST(GestureState, EqualityComparesEveryField) {
    const GestureState initial;
    GestureState other;
    other.count = 1;
    EXPECT_NE(other, initial);
    other = GestureState();
    other.began = 0.0;
    EXPECT_NE(other, initial);
    other = GestureState();
    other.origins.insert(1, {0.5, 0.5});
    EXPECT_NE(other, initial);
    other = GestureState();
    other.invalid = true;
    EXPECT_NE(other, initial);
}

TEST(GestureState, CopiesAreIndependentValues) {
    GestureState state;
    state.update(fingers(2), 1.0);
    GestureState copy = state;
    EXPECT_EQ(copy, state);
    EXPECT_EQ(copy.update(lifted, 1.1), 2);
    EXPECT_EQ(state.peak, 2);
    EXPECT_EQ(state.update(lifted, 1.1), 2);
}

}  // namespace
}  // namespace tactora
