// The options against accidents and the tap's limits, through the running program: the
// composition hands the controller its guard, and what the user sets there decides.
#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/app/ControllerObserver.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"

namespace tactora::testing {
namespace {

constexpr ContactShape fingertipShape{0.8F, 0, 9, 8};
constexpr ContactShape palmShape{4.5F, 0, 25, 16};

// Writes down why touches and actions came to nothing.
class DropTaker final : public ControllerObserver {
  public:
    void touchDropped(const TouchDropNote& note) override { reasons.push_back(note.reason); }
    void actionDropped(const ActionDropNote& note) override { reasons.push_back(note.reason); }

    std::vector<DropReason> reasons;
};

class ControllerMisfireTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        for (std::int64_t fingers = 1; fingers <= 4; ++fingers) {
            h.assign(slot::forTap(fingers), action::missionControl);
            h.assign(slot::forClick(fingers), action::middle);
        }
        h.c().addObserver(drops);
    }
    void TearDown() override { h.c().removeObserver(drops); }

    void use(const MisfireOptions& options) { h.a().misfireGuard().setOptions(options); }

    // One frame of these contacts, with their shapes, through the controller.
    void frame(const std::vector<Finger>& fingers,
               const std::vector<std::optional<ContactShape>>& shapes = {}) {
        h.c().receive(fingers, shapes);
    }
    void lift() { frame({}); }
    // The tap's wait, and a little more.
    void settle() { h.queue.advance(Controller::tapDelay + 0.01); }

    // Tap actions performed so far (each asks the Dock once).
    std::size_t taps() const { return h.poster.dockRequests.size(); }

    ControllerHarness h;
    DropTaker drops;
};

TEST_F(ControllerMisfireTest, WithEveryOptionOffAPalmTapActsAsWithoutThem) {
    frame({{1, 0.5, 0.1}}, {palmShape});
    h.queue.advance(0.1);
    lift();
    settle();
    EXPECT_EQ(taps(), 1U);
}

TEST_F(ControllerMisfireTest, QuietAfterActivityIgnoresATapJustAfterAClick) {
    MisfireOptions options;
    options.quietAfterActivity = 0.3;
    use(options);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(down);
    h.send(up);
    h.queue.advance(0.1);
    h.tap(1);
    settle();
    EXPECT_EQ(taps(), 0U);
    ASSERT_FALSE(drops.reasons.empty());
    EXPECT_EQ(drops.reasons.back(), DropReason::afterActivity);

    h.queue.advance(1.0);
    h.tap(1);
    settle();
    EXPECT_EQ(taps(), 1U);
}

TEST_F(ControllerMisfireTest, IgnoringPalmsDropsATouchWithAPalmInIt) {
    MisfireOptions options;
    options.ignoreLargeContacts = true;
    use(options);
    frame({{1, 0.5, 0.1}}, {palmShape});
    h.queue.advance(0.1);
    lift();
    settle();
    EXPECT_EQ(taps(), 0U);
    ASSERT_FALSE(drops.reasons.empty());
    EXPECT_EQ(drops.reasons.back(), DropReason::largeContact);
}

TEST_F(ControllerMisfireTest, IgnoringPalmsKeepsAClickMadeWhileOneRestsOrdinary) {
    MisfireOptions options;
    options.ignoreLargeContacts = true;
    use(options);
    frame({{1, 0.5, 0.7}, {2, 0.5, 0.1}}, {fingertipShape, palmShape});
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.integerField(event::buttonNumber), 0);
    h.queue.runReady();  // the tap's notes are told once it has its answer
    EXPECT_EQ(drops.reasons, std::vector<DropReason>{DropReason::largeContact});
}

TEST_F(ControllerMisfireTest, EdgeBandsIgnoreAThumbBrushingTheSide) {
    MisfireOptions options;
    options.edgeBands = MisfireOptions::defaultEdgeBands;
    use(options);
    frame({{1, 0.02, 0.5}});
    h.queue.advance(0.1);
    lift();
    settle();
    EXPECT_EQ(taps(), 0U);

    frame({{2, 0.5, 0.5}});
    h.queue.advance(0.1);
    lift();
    settle();
    EXPECT_EQ(taps(), 1U);
}

TEST_F(ControllerMisfireTest, FingertipsOnlyCountsAOneFingerClickBesideARestingPalm) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    use(options);
    frame({{1, 0.5, 0.7}, {2, 0.5, 0.1}}, {fingertipShape, palmShape});
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    // The one-finger click's slot, not the two-finger one.
    EXPECT_EQ(h.c().state().lastGesture, L("gesture.click", std::int64_t{1}));
}

TEST_F(ControllerMisfireTest, FingertipsOnlyKeepsATapMadeWhileAPalmRests) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    use(options);
    frame({{1, 0.5, 0.1}}, {palmShape});
    h.queue.advance(1.0);
    frame({{1, 0.5, 0.1}, {2, 0.5, 0.7}}, {palmShape, fingertipShape});
    h.queue.advance(0.1);
    frame({{1, 0.5, 0.1}}, {palmShape});
    settle();
    EXPECT_EQ(taps(), 1U);
}

TEST_F(ControllerMisfireTest, ForgettingEarlierActivityLetsATapFollowMomentum) {
    FakeTapEvent scroll = h.mouseEvent(event::scrollWheel);
    h.send(scroll);  // momentum, nothing touching
    h.tap(1);
    settle();
    EXPECT_EQ(taps(), 0U);
    ASSERT_FALSE(drops.reasons.empty());
    EXPECT_EQ(drops.reasons.back(), DropReason::moved);

    MisfireOptions options;
    options.forgetEarlierActivity = true;
    use(options);
    h.send(scroll);
    h.tap(1);
    settle();
    EXPECT_EQ(taps(), 1U);
}

TEST_F(ControllerMisfireTest, ForgettingEarlierActivityLetsAClickVetoItsOwnFragments) {
    MisfireOptions options;
    options.forgetEarlierActivity = true;
    use(options);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.advance(0.05);
    // The finger drops out for a frame, and comes back while the button is still held.
    h.tap(1, 0.08);
    settle();
    EXPECT_EQ(taps(), 0U);
    ASSERT_FALSE(drops.reasons.empty());
    EXPECT_EQ(drops.reasons.back(), DropReason::duringPress);
}

TEST_F(ControllerMisfireTest, IgnoringDrummingDropsFingersLandingOneAfterAnother) {
    MisfireOptions options;
    options.ignoreDrumming = true;
    use(options);
    frame({{1, 0.3, 0.7}});
    h.queue.advance(0.07);
    frame({{1, 0.3, 0.7}, {2, 0.45, 0.7}});
    h.queue.advance(0.05);
    lift();
    settle();
    EXPECT_EQ(taps(), 0U);
    ASSERT_FALSE(drops.reasons.empty());
    EXPECT_EQ(drops.reasons.back(), DropReason::drumming);
}

TEST_F(ControllerMisfireTest, IgnoringDrummingDropsATapFollowedAtOnceByAnotherFinger) {
    MisfireOptions options;
    options.ignoreDrumming = true;
    use(options);
    frame({{1, 0.3, 0.7}});
    h.queue.advance(0.08);
    lift();
    h.queue.advance(0.02);
    frame({{2, 0.5, 0.7}});
    settle();
    EXPECT_EQ(taps(), 0U);
    ASSERT_FALSE(drops.reasons.empty());
    EXPECT_EQ(drops.reasons.back(), DropReason::drumming);
}

TEST_F(ControllerMisfireTest, IgnoringDrummingKeepsQuickTapsInOnePlace) {
    MisfireOptions options;
    options.ignoreDrumming = true;
    use(options);
    for (int tap = 0; tap < 3; ++tap) {
        frame({{1, 0.5, 0.7}});
        h.queue.advance(0.08);
        lift();
        h.queue.advance(0.03);
    }
    settle();
    EXPECT_EQ(taps(), 3U);
}

TEST_F(ControllerMisfireTest, ALongerLongestTapTakesEffectFromTheNextTouch) {
    h.tap(1, 0.4);
    settle();
    EXPECT_EQ(taps(), 0U);
    ASSERT_FALSE(drops.reasons.empty());
    EXPECT_EQ(drops.reasons.back(), DropReason::tooLong);

    h.a().misfireGuard().setThresholds({.shortest = 0.035, .longest = 0.5, .tolerance = 0.045});
    h.tap(1, 0.4);
    settle();
    EXPECT_EQ(taps(), 1U);
}

TEST_F(ControllerMisfireTest, AWiderToleranceKeepsASlidingTap) {
    h.a().misfireGuard().setThresholds({.shortest = 0.035, .longest = 0.3, .tolerance = 0.1});
    frame({{1, 0.5, 0.5}});
    h.queue.advance(0.05);
    frame({{1, 0.56, 0.5}});
    h.queue.advance(0.05);
    lift();
    settle();
    EXPECT_EQ(taps(), 1U);
}

TEST_F(ControllerMisfireTest, AResetForgetsTheTouchInTheGuardToo) {
    MisfireOptions options;
    options.ignoreLargeContacts = true;
    use(options);
    frame({{1, 0.5, 0.1}}, {palmShape});
    h.c().applicationDidResignActive();
    // A new touch with the same id is a fingertip now: nothing of the palm is remembered.
    frame({}, {});
    frame({{1, 0.5, 0.7}}, {fingertipShape});
    h.queue.advance(0.1);
    lift();
    settle();
    EXPECT_EQ(taps(), 1U);
}

}  // namespace
}  // namespace tactora::testing
