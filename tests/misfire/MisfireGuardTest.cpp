#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "core/gestures/GestureState.h"
#include "core/misfire/ContactJudge.h"
#include "core/misfire/MisfireGuard.h"

namespace tactora {
namespace {

constexpr ContactShape fingertipShape{0.8F, 0, 9, 8};
constexpr ContactShape palmShape{4.5F, 0, 25, 16};

// A recogniser fed through the guard, as the controller feeds it.
class Guarded {
  public:
    explicit Guarded(MisfireOptions options) : guard(options) {}

    // Feeds a frame; the tap it completes, unless an option dropped it.
    std::optional<std::int64_t> frame(const std::vector<Finger>& fingers,
                                      const std::vector<std::optional<ContactShape>>& shapes,
                                      double now) {
        const JudgedFrame guarded = guard.frame(fingers, shapes, now);
        if (guarded.restart) {
            restarts.push_back(guarded.restartReason);
            (void)recogniser.update({}, now);
        }
        if (!guarded.deliver) {
            ++withheld;
            return std::nullopt;
        }
        const std::optional<std::int64_t> tap = recogniser.update(guarded.fingers, now);
        if (tap) {
            dropped = guard.judgeTap();
            if (dropped) {
                return std::nullopt;
            }
        }
        return tap;
    }

    std::optional<std::int64_t> frame(const std::vector<Finger>& fingers, double now) {
        return frame(fingers, {}, now);
    }

    void scroll(double now) {
        if (guard.scroll(now)) {
            recogniser.moved = true;
        }
    }

    void click(double down, double up) {
        guard.button(true, down);
        recogniser.physicalClick();
        guard.button(false, up);
    }

    MisfireGuard guard;
    GestureState recogniser;
    std::vector<DropReason> restarts;
    std::optional<DropReason> dropped;
    int withheld = 0;
};

Finger at(std::int64_t id, double x = 0.5, double y = 0.7) {
    return Finger(id, x, y);
}

TEST(MisfireGuard, WithEveryOptionOffFramesPassAsTheyAre) {
    MisfireGuard guard;
    const std::vector<Finger> fingers = {at(1), at(2, 0.01, 0.05)};
    const std::vector<std::optional<ContactShape>> shapes = {palmShape, palmShape};
    const JudgedFrame guarded = guard.frame(fingers, shapes, 1.0);
    EXPECT_FALSE(guarded.restart);
    EXPECT_TRUE(guarded.deliver);
    EXPECT_EQ(std::vector<Finger>(guarded.fingers.begin(), guarded.fingers.end()), fingers);
    EXPECT_TRUE(guard.scroll(1.1));
    EXPECT_FALSE(guard.judgeTap());
    EXPECT_FALSE(guard.judgeClick());
    EXPECT_TRUE(guard.frame({}, {}, 1.2).deliver);
}

TEST(MisfireGuard, WithEveryOptionOffAClickVetoesAsWithoutIt) {
    const MisfireGuard guard;
    EXPECT_TRUE(guard.vetoAtDue(0.99, 1.0, 1.05, 0.08));   // before the touch, within the wait
    EXPECT_TRUE(guard.vetoAtDue(1.1, 1.0, 1.05, 0.08));    // during the wait
    EXPECT_FALSE(guard.vetoAtDue(0.96, 1.0, 1.05, 0.08));  // long enough before the release
}

TEST(QuietAfterActivity, DropsATapThatStartsSoonAfterAScroll) {
    MisfireOptions options;
    options.quietAfterActivity = 0.3;
    Guarded guarded(options);
    guarded.guard.scroll(0.9);
    EXPECT_FALSE(guarded.frame({at(1)}, 1.0));
    EXPECT_FALSE(guarded.frame({}, 1.1));
    EXPECT_EQ(guarded.dropped, DropReason::afterActivity);
}

TEST(QuietAfterActivity, DropsATapThatStartsSoonAfterAClick) {
    MisfireOptions options;
    options.quietAfterActivity = 0.3;
    Guarded guarded(options);
    guarded.guard.button(true, 0.7);
    guarded.guard.button(false, 0.8);
    EXPECT_FALSE(guarded.frame({at(1)}, 1.0));
    EXPECT_FALSE(guarded.frame({}, 1.1));
    EXPECT_EQ(guarded.dropped, DropReason::afterActivity);
}

TEST(QuietAfterActivity, KeepsATapThatStartsLater) {
    MisfireOptions options;
    options.quietAfterActivity = 0.3;
    Guarded guarded(options);
    guarded.guard.scroll(0.7);
    EXPECT_FALSE(guarded.frame({at(1)}, 1.0));
    EXPECT_EQ(guarded.frame({}, 1.1), 1);
}

TEST(IgnoreLargeContacts, DropsATouchWithAPalmSizedContact) {
    MisfireOptions options;
    options.ignoreLargeContacts = true;
    Guarded guarded(options);
    EXPECT_FALSE(guarded.frame({at(1, 0.5, 0.1)}, {palmShape}, 1.0));
    EXPECT_FALSE(guarded.frame({}, 1.1));
    EXPECT_EQ(guarded.dropped, DropReason::largeContact);
}

TEST(IgnoreLargeContacts, KeepsAClickDuringATouchWithAPalmOrdinary) {
    MisfireOptions options;
    options.ignoreLargeContacts = true;
    Guarded guarded(options);
    guarded.frame({at(1), at(2, 0.5, 0.1)}, {fingertipShape, palmShape}, 1.0);
    EXPECT_EQ(guarded.guard.judgeClick(), DropReason::largeContact);
}

TEST(IgnoreLargeContacts, KeepsAFingertipTap) {
    MisfireOptions options;
    options.ignoreLargeContacts = true;
    Guarded guarded(options);
    EXPECT_FALSE(guarded.frame({at(1)}, {fingertipShape}, 1.0));
    EXPECT_EQ(guarded.frame({}, 1.1), 1);
    EXPECT_FALSE(guarded.guard.judgeClick());
}

TEST(EdgeBands, IgnoreAContactThatLandsInABand) {
    MisfireOptions options;
    options.edgeBands = EdgeBands{0.06, 0.06, 0, 0.12};
    Guarded guarded(options);
    EXPECT_FALSE(guarded.frame({at(1, 0.03, 0.5)}, 1.0));  // the thumb on the left side
    EXPECT_FALSE(guarded.frame({at(1, 0.03, 0.5)}, 1.05));
    EXPECT_FALSE(guarded.frame({}, 1.1));
    EXPECT_EQ(guarded.withheld, 2);
    EXPECT_EQ(guarded.recogniser, GestureState());
}

TEST(EdgeBands, LeaveTheOtherContactsToCount) {
    MisfireOptions options;
    options.edgeBands = EdgeBands{0.06, 0.06, 0, 0.12};
    Guarded guarded(options);
    guarded.frame({at(1, 0.97, 0.5)}, 1.0);  // the thumb on the right side rests
    guarded.frame({at(1, 0.97, 0.5), at(2)}, 1.2);
    EXPECT_EQ(guarded.recogniser.count, 1);  // a click now is a one-finger click
    guarded.frame({at(1, 0.97, 0.5)}, 1.3);
    EXPECT_EQ(guarded.recogniser.count, 0);
}

TEST(EdgeBands, KeepAContactThatLandsInsideAndSlidesOut) {
    MisfireOptions options;
    options.edgeBands = EdgeBands{0.06, 0.06, 0.06, 0.12};
    Guarded guarded(options);
    guarded.frame({at(1, 0.07, 0.5)}, 1.0);
    guarded.frame({at(1, 0.05, 0.5)}, 1.05);
    EXPECT_EQ(guarded.recogniser.count, 1);
    EXPECT_TRUE(contact::inEdgeBand(0.5, 0.95, EdgeBands{0, 0, 0.06, 0}));  // the front band
    EXPECT_TRUE(contact::inEdgeBand(0.5, 0.1, EdgeBands{0, 0, 0, 0.12}));   // the back band
    EXPECT_FALSE(contact::inEdgeBand(0.06, 0.5, EdgeBands{0.06, 0, 0, 0}));
}

TEST(FingertipsOnly, LeavesAPalmOutOfAClicksCount) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    Guarded guarded(options);
    guarded.frame({at(1, 0.5, 0.1)}, {palmShape}, 1.0);
    guarded.frame({at(1, 0.5, 0.1), at(2)}, {palmShape, fingertipShape}, 1.5);
    EXPECT_EQ(guarded.recogniser.count, 1);
}

TEST(FingertipsOnly, RecognisesATapMadeWhileThePalmRests) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    Guarded guarded(options);
    guarded.frame({at(1, 0.5, 0.1)}, {palmShape}, 1.0);
    EXPECT_FALSE(guarded.frame({at(1, 0.5, 0.1), at(2), at(3, 0.65)},
                               {palmShape, fingertipShape, fingertipShape}, 1.5));
    EXPECT_EQ(guarded.frame({at(1, 0.5, 0.1)}, {palmShape}, 1.62), 2);
    EXPECT_FALSE(guarded.frame({}, 3.0));
}

TEST(FingertipsOnly, RestartsATouchWhenAContactGrowsToAThumbsSize) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    Guarded guarded(options);
    const ContactShape landing{0.7F, 0, 6, 5};
    guarded.frame({at(1, 0.03, 0.5), at(2)}, {landing, fingertipShape}, 1.0);
    EXPECT_EQ(guarded.recogniser.peak, 2);
    guarded.frame({at(1, 0.03, 0.5), at(2)}, {ContactShape{1.9F, 0, 15, 9}, fingertipShape}, 1.011);
    EXPECT_EQ(guarded.restarts, (std::vector<DropReason>{DropReason::largeContact}));
    EXPECT_EQ(guarded.recogniser.peak, 1);
    // The fingertip's tap, measured from when the thumb was left out.
    EXPECT_EQ(guarded.frame({at(1, 0.03, 0.5)}, {ContactShape{1.9F, 0, 15, 9}}, 1.1), 1);
    EXPECT_FALSE(guarded.dropped);
}

TEST(FingertipsOnly, WithoutSizesLeavesOutAContactRestingSinceBeforeTheOthers) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    Guarded guarded(options);
    guarded.frame({at(1, 0.5, 0.1)}, 1.0);
    guarded.frame({at(1, 0.5, 0.1), at(2)}, 1.5);
    EXPECT_EQ(guarded.restarts, (std::vector<DropReason>{DropReason::restingContact}));
    EXPECT_EQ(guarded.recogniser.count, 1);
    EXPECT_EQ(guarded.frame({at(1, 0.5, 0.1)}, 1.6), 1);
}

TEST(FingertipsOnly, WithoutSizesKeepsFingersThatLandTogether) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    Guarded guarded(options);
    guarded.frame({at(1)}, 1.0);
    guarded.frame({at(1), at(2, 0.65)}, 1.02);
    guarded.frame({at(1), at(2, 0.65)}, 1.4);
    EXPECT_EQ(guarded.recogniser.count, 2);
    EXPECT_TRUE(guarded.restarts.empty());
}

TEST(ForgetEarlierActivity, MomentumBeforeATouchNoLongerSpoilsIt) {
    MisfireOptions options;
    options.forgetEarlierActivity = true;
    Guarded guarded(options);
    guarded.scroll(0.5);  // momentum, while nothing touches
    EXPECT_FALSE(guarded.frame({at(1)}, 1.0));
    EXPECT_EQ(guarded.frame({}, 1.1), 1);
}

TEST(ForgetEarlierActivity, AScrollDuringATouchStillSpoilsIt) {
    MisfireOptions options;
    options.forgetEarlierActivity = true;
    Guarded guarded(options);
    EXPECT_FALSE(guarded.frame({at(1)}, 1.0));
    guarded.scroll(1.05);
    EXPECT_FALSE(guarded.frame({}, 1.1));
}

TEST(ForgetEarlierActivity, WithoutItMomentumSpoilsTheNextTap) {
    Guarded guarded(MisfireOptions::none());
    guarded.scroll(0.5);
    EXPECT_FALSE(guarded.frame({at(1)}, 1.0));
    EXPECT_FALSE(guarded.frame({}, 1.1));
}

TEST(ForgetEarlierActivity, AClickBeforeTheTouchNoLongerVetoesIt) {
    MisfireOptions options;
    options.forgetEarlierActivity = true;
    const MisfireGuard guard(options);
    EXPECT_FALSE(guard.vetoAtDue(0.99, 1.0, 1.06, 0.08));
    EXPECT_TRUE(guard.vetoAtDue(1.01, 1.0, 1.06, 0.08));
    EXPECT_TRUE(guard.vetoAtDue(1.1, 1.0, 1.06, 0.08));
}

TEST(ForgetEarlierActivity, KeepsAClicksVetoOverAFragmentOfItsPress) {
    MisfireOptions options;
    options.forgetEarlierActivity = true;
    Guarded guarded(options);
    guarded.frame({at(1)}, 1.0);
    guarded.guard.button(true, 1.2);
    guarded.recogniser.physicalClick();
    EXPECT_FALSE(guarded.frame({}, 1.25));  // the sensor loses the finger for a frame
    EXPECT_FALSE(guarded.frame({at(1)}, 1.26));
    guarded.guard.button(false, 1.3);
    EXPECT_FALSE(guarded.frame({}, 1.45));
    EXPECT_EQ(guarded.dropped, DropReason::duringPress);
}

TEST(ForgetEarlierActivity, WithoutItAFragmentOfAPressIsATap) {
    Guarded guarded(MisfireOptions::none());
    guarded.frame({at(1)}, 1.0);
    guarded.guard.button(true, 1.2);
    guarded.recogniser.physicalClick();
    guarded.frame({}, 1.25);
    guarded.frame({at(1)}, 1.26);
    guarded.guard.button(false, 1.3);
    EXPECT_EQ(guarded.frame({}, 1.45), 1);
}

TEST(MisfireGuard, ResetForgetsTheContactsButNotTheOptions) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    MisfireGuard guard(options);
    const std::vector<Finger> palm = {at(1, 0.5, 0.1)};
    const std::vector<std::optional<ContactShape>> shape = {palmShape};
    EXPECT_TRUE(guard.frame(palm, shape, 1.0).fingers.empty());
    guard.reset();
    EXPECT_EQ(guard.options(), options);
    EXPECT_TRUE(guard.frame(palm, shape, 1.1).fingers.empty());
}

}  // namespace
}  // namespace tactora
