#include "core/moregestures/TapHold.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "Touches.h"

namespace tactora {
namespace {

using testing::Frame;
using testing::holdBegan;
using testing::holdEnded;
using testing::lifted;
using testing::only;
using testing::Touches;

const auto holdOnly = only({MoreGestureSlot::tapHold});
using Phase = TapHold::Phase;
using Change = TapHold::Change;

// A one-finger tap from 1.4 to 1.5.
void tap(Touches& touches) {
    touches.at(1.4, {{1, 0.5, 0.5}});
    touches.at(1.5, lifted);
}

// A finger (id 2) that lands at `down` and rests, frames every 10 ms, until `until` (exclusive).
void rest(Touches& touches, double down, double until, std::int64_t id = 2) {
    for (int step = 0; down + step * 0.01 < until; ++step) {
        touches.at(down + step * 0.01, {{id, 0.5, 0.5}});
    }
}

TEST(TapHold, PhasesOfAHoldFromTapToLift) {
    TapHold hold;
    EXPECT_EQ(hold.phase(), Phase::idle);
    EXPECT_EQ(hold.touchEnded(1.5, true), std::nullopt);
    EXPECT_EQ(hold.phase(), Phase::armed);
    const Frame finger{{2, 0.5, 0.5}};
    EXPECT_EQ(hold.update(finger, 1.6, false), std::nullopt);
    EXPECT_EQ(hold.phase(), Phase::landed);
    EXPECT_EQ(hold.update(finger, 1.9, false), std::nullopt);
    EXPECT_EQ(hold.update(finger, 1.91, false), Change::began);
    EXPECT_EQ(hold.phase(), Phase::holding);
    EXPECT_EQ(hold.update(Frame{{3, 0.2, 0.5}}, 2.0, false), Change::ended);
    EXPECT_EQ(hold.phase(), Phase::spent);
    EXPECT_EQ(hold.touchEnded(2.1, false), std::nullopt);
    EXPECT_EQ(hold.phase(), Phase::idle);
}

TEST(TapHold, TapThenAFingerThatLandsAndRestsHoldsUntilItLifts) {
    Touches touches(holdOnly);
    tap(touches);
    rest(touches, 1.6, 2.5);
    EXPECT_EQ(touches.events, std::vector{holdBegan});
    EXPECT_TRUE(touches.more.holding());
    touches.at(2.5, lifted);
    EXPECT_EQ(touches.events, (std::vector{holdBegan, holdEnded}));
    EXPECT_FALSE(touches.more.holding());
    // The tap is still the plain tap; the hold's own touch is none.
    EXPECT_EQ(touches.plainTaps, std::vector<std::int64_t>{1});
}

TEST(TapHold, BeginsOnlyOnceTheFingerHasRestedLongerThanATap) {
    Touches touches(holdOnly);
    tap(touches);
    touches.at(1.6, {{2, 0.5, 0.5}});
    EXPECT_EQ(touches.at(1.9, {{2, 0.5, 0.5}}), std::nullopt);
    EXPECT_EQ(touches.at(1.91, {{2, 0.5, 0.5}}), holdBegan);
}

TEST(TapHold, LandingMayComeAsLateAsTheGapAndNoLater) {
    Touches inTime(holdOnly);
    tap(inTime);
    rest(inTime, 1.75, 2.2);
    EXPECT_EQ(inTime.events, std::vector{holdBegan});
    Touches late(holdOnly);
    tap(late);
    rest(late, 1.76, 2.2);
    EXPECT_TRUE(late.events.empty());
}

TEST(TapHold, QuickDoubleTapHoldsNothing) {
    Touches touches(holdOnly);
    tap(touches);
    touches.at(1.6, {{2, 0.5, 0.5}});
    touches.at(1.7, lifted);
    EXPECT_TRUE(touches.events.empty());
    EXPECT_EQ(touches.plainTaps, (std::vector<std::int64_t>{1, 1}));
}

TEST(TapHold, LandingFingerThatSlidesHoldsNothing) {
    Touches touches(holdOnly);
    tap(touches);
    touches.at(1.6, {{2, 0.5, 0.5}});
    touches.at(1.7, {{2, 0.5, 0.6}});
    rest(touches, 1.8, 2.3);
    EXPECT_TRUE(touches.events.empty());
}

TEST(TapHold, TwoFingersLandingHoldNothing) {
    Touches touches(holdOnly);
    tap(touches);
    touches.at(1.6, {{2, 0.5, 0.5}, {3, 0.7, 0.5}});
    touches.at(1.65, {{2, 0.5, 0.5}});
    rest(touches, 1.7, 2.3);
    EXPECT_TRUE(touches.events.empty());
}

TEST(TapHold, SecondFingerLandingApartBeforeTheHoldRefusesIt) {
    Touches touches(holdOnly);
    tap(touches);
    touches.at(1.6, {{2, 0.5, 0.5}});
    touches.at(1.7, {{2, 0.5, 0.5}, {3, 0.7, 0.5}});
    touches.at(1.75, {{2, 0.5, 0.5}});
    rest(touches, 1.8, 2.3);
    EXPECT_TRUE(touches.events.empty());
}

TEST(TapHold, WithoutALeadingOneFingerTapThereIsNoHold) {
    Touches afterRest(holdOnly);
    afterRest.oneFingerTouch(1.0, 1.5, 0.5, 0.5);
    rest(afterRest, 1.6, 2.3);
    EXPECT_TRUE(afterRest.events.empty());
    Touches afterTwoFingerTap(holdOnly);
    afterTwoFingerTap.at(1.4, {{1, 0.4, 0.5}, {3, 0.6, 0.5}});
    afterTwoFingerTap.at(1.5, lifted);
    rest(afterTwoFingerTap, 1.6, 2.3);
    EXPECT_TRUE(afterTwoFingerTap.events.empty());
}

TEST(TapHold, PhysicalClickDuringTheHoldEndsItAtOnceAndOnce) {
    Touches touches(holdOnly);
    tap(touches);
    rest(touches, 1.6, 2.0);
    EXPECT_EQ(touches.more.physicalClick(), holdEnded);
    EXPECT_FALSE(touches.more.holding());
    rest(touches, 2.0, 2.5);
    touches.at(2.5, lifted);
    EXPECT_EQ(touches.events, std::vector{holdBegan});
}

TEST(TapHold, PhysicalClickBeforeTheHoldBeginsRefusesIt) {
    Touches touches(holdOnly);
    tap(touches);
    rest(touches, 1.6, 1.7);
    EXPECT_EQ(touches.more.physicalClick(), std::nullopt);
    rest(touches, 1.7, 2.3);
    EXPECT_TRUE(touches.events.empty());
}

TEST(TapHold, CancellingDuringTheHoldEndsItOnce) {
    Touches touches(holdOnly);
    tap(touches);
    rest(touches, 1.6, 2.0);
    EXPECT_EQ(touches.more.cancel(), holdEnded);
    EXPECT_EQ(touches.more.cancel(), std::nullopt);
    rest(touches, 2.0, 2.5);
    touches.at(2.5, lifted);
    EXPECT_EQ(touches.events, std::vector{holdBegan});
}

TEST(TapHold, NewSettingsDuringTheHoldEndIt) {
    Touches touches(holdOnly);
    tap(touches);
    rest(touches, 1.6, 2.0);
    EXPECT_EQ(touches.more.configure(MoreGestureSettings::all()), holdEnded);
    EXPECT_FALSE(touches.more.holding());
}

TEST(TapHold, OtherFingersDuringTheHoldStartNoGestureOfTheirOwn) {
    Touches touches(MoreGestureSettings::all());
    tap(touches);
    rest(touches, 1.6, 2.0);
    touches.at(2.0, {{2, 0.5, 0.5}, {3, 0.3, 0.5}});  // would be a tip tap
    touches.at(2.1, {{2, 0.5, 0.5}});
    touches.at(2.2, {{2, 0.5, 0.5}, {3, 0.8, 0.5}});
    touches.at(2.25, {{2, 0.5, 0.5}, {3, 0.8, 0.8}});  // would be a swipe
    EXPECT_TRUE(touches.more.holding());
    EXPECT_FALSE(touches.more.swallowsScroll());
    touches.at(2.3, lifted);
    // The tap that led the hold was in the right half, which is mapped too.
    EXPECT_EQ(touches.events,
              (std::vector{testing::gestureOf(MoreGestureSlot::tapRight), holdBegan, holdEnded}));
}

TEST(TapHold, HoldEndsWhenItsOwnFingerLiftsEvenWithAnotherStillDown) {
    Touches touches(holdOnly);
    tap(touches);
    rest(touches, 1.6, 2.0);
    touches.at(2.0, {{2, 0.5, 0.5}, {3, 0.3, 0.5}});
    EXPECT_EQ(touches.at(2.1, {{3, 0.3, 0.5}}), holdEnded);
    rest(touches, 2.2, 2.8, 3);
    touches.at(2.8, lifted);
    EXPECT_EQ(touches.events, (std::vector{holdBegan, holdEnded}));
}

// Whatever happens, and in whatever order, every hold that begins ends exactly once, and never
// two begin without an end between them. Random taps and rests, interrupted at random by
// clicks, cancels, new settings, further fingers and lifts.
TEST(TapHold, EveryBeginningHasExactlyOneEndWhateverHappens) {
    std::mt19937 random(18);
    auto uniform = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    auto chance = [&random](int percent) {
        return std::uniform_int_distribution<int>(1, 100)(random) <= percent;
    };
    int holds = 0;
    for (int run = 0; run < 100; ++run) {
        Touches touches(holdOnly);
        int held = 0;
        auto check = [&](std::optional<MoreGestureEvent> event) {
            if (event == holdBegan) {
                ASSERT_EQ(held, 0);
                ++held;
                ++holds;
            } else if (event == holdEnded) {
                ASSERT_EQ(held, 1);
                --held;
            }
            ASSERT_EQ(touches.more.holding(), held == 1);
        };
        double t = 1.0;
        for (int episode = 0; episode < 40; ++episode) {
            // A tap, or a rest that may hold, interrupted now and then.
            const double length = chance(50) ? uniform(0.02, 0.35) : uniform(0.2, 1.0);
            const double end = t + length;
            for (; t < end; t += 0.02) {
                Frame frame{{1, 0.5, 0.5}};
                if (chance(3)) {
                    frame.emplace_back(2, 0.3, 0.5);
                }
                check(touches.at(t, frame));
                if (chance(2)) {
                    check(touches.more.physicalClick());
                } else if (chance(2)) {
                    check(touches.more.cancel());
                } else if (chance(2)) {
                    check(
                        touches.more.configure(chance(50) ? MoreGestureSettings::all() : holdOnly));
                }
            }
            if (chance(90)) {
                check(touches.at(t, lifted));
            }
            t += uniform(0.0, 0.35);
        }
        check(touches.more.cancel());
        ASSERT_EQ(held, 0);
    }
    EXPECT_GT(holds, 50);  // the runs did hold, many times
}

}  // namespace
}  // namespace tactora
