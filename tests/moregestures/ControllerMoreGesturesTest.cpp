// The gestures beyond the eight through the running program: the composition hands the
// controller its extension, and what the active profile maps decides.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/actions/MouseEventType.h"
#include "core/app/Globals.h"
#include "core/profiles/GestureSlot.h"
#include "core/profiles/MoreGestureSlot.h"

namespace tactora::testing {
namespace {

using Fingers = std::vector<Finger>;

class ControllerMoreGesturesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        for (std::int64_t fingers = 1; fingers <= 4; ++fingers) {
            h.assign(slot::forTap(fingers), action::missionControl);
        }
    }

    // Maps `slot` in the active profile; the program picks it up at its next refresh.
    void map(MoreGestureSlot slot, ActionIndex action) {
        h.c().profiles().setMoreAction(action, slot);
        h.queue.advance(Controller::refreshInterval + 0.01);
    }

    void frame(const Fingers& fingers) { h.c().receive(fingers, {}); }
    // These contacts, still, a frame every 10 ms for `duration`; not lifted.
    void rest(const Fingers& fingers, double duration) {
        for (double elapsed = 0; elapsed < duration; elapsed += 0.01) {
            frame(fingers);
            h.queue.advance(0.01);
        }
    }
    void lift() { frame({}); }
    // One finger at (x, y) for a tenth of a second, then the tap's wait and a little more.
    void tapAt(double x, double y) {
        rest({{1, x, y}}, 0.1);
        lift();
        settle();
    }
    void settle() { h.queue.advance(Controller::tapDelay + 0.01); }
    // Two fingers moving together by `dx` per 10 ms frame, `frames` times, scrolling as they go.
    // What the event tap made of each scroll event.
    std::vector<EventDisposition> slideTwo(double dx, int frames) {
        std::vector<EventDisposition> scrolls;
        double x = 0.5;
        for (int step = 0; step < frames; ++step) {
            frame({{1, x, 0.5}, {2, x + 0.1, 0.5}});
            FakeTapEvent scroll = h.mouseEvent(event::scrollWheel);
            scrolls.push_back(h.send(scroll));
            h.queue.advance(0.01);
            x += dx;
        }
        return scrolls;
    }
    // A one-finger tap, then the finger landing again and resting long enough to hold.
    void tapThenHold() {
        rest({{1, 0.5, 0.5}}, 0.1);
        lift();
        h.queue.advance(0.1);
        rest({{2, 0.5, 0.5}}, 0.45);
    }

    // Mission Control requests (the taps' action) and Show Desktop requests so far.
    std::size_t missionControls() const { return count(false); }
    std::size_t showDesktops() const { return count(true); }
    std::size_t count(bool showDesktop) const {
        return static_cast<std::size_t>(std::ranges::count(h.poster.dockRequests, showDesktop));
    }
    std::size_t ups(MouseButton button) const { return motions(button, MouseMotion::up); }
    std::size_t downs(MouseButton button) const { return motions(button, MouseMotion::down); }
    std::size_t motions(MouseButton button, MouseMotion motion) const {
        std::size_t found = 0;
        for (const MouseButtonEvent& posted : h.poster.mouseEvents()) {
            if (posted.button == button && posted.type == mouseEventType(button, motion)) {
                ++found;
            }
        }
        return found;
    }

    ControllerHarness h;
};

TEST_F(ControllerMoreGesturesTest, NothingMappedLeavesEveryTouchAsItWas) {
    tapAt(0.2, 0.5);
    EXPECT_EQ(missionControls(), 1U);

    for (const EventDisposition scroll : slideTwo(-0.03, 12)) {
        EXPECT_EQ(scroll, EventDisposition::pass);
    }
    lift();
    tapThenHold();
    lift();
    settle();

    EXPECT_TRUE(h.poster.mouseEvents().empty());
    EXPECT_TRUE(h.dragger.changes.empty());
    EXPECT_FALSE(h.a().moreGestures().listening());
}

TEST_F(ControllerMoreGesturesTest, ARegionTapTakesTheOneFingerTapInItsRegionOnly) {
    map(MoreGestureSlot::tapLeft, action::showDesktop);

    tapAt(0.2, 0.5);
    EXPECT_EQ(showDesktops(), 1U);
    EXPECT_EQ(missionControls(), 0U);

    tapAt(0.8, 0.5);
    EXPECT_EQ(showDesktops(), 1U);
    EXPECT_EQ(missionControls(), 1U);
}

TEST_F(ControllerMoreGesturesTest, TheTopBandTakesPrecedenceOverTheHalves) {
    map(MoreGestureSlot::tapLeft, action::missionControl);
    map(MoreGestureSlot::tapTop, action::showDesktop);

    tapAt(0.2, 0.95);
    EXPECT_EQ(showDesktops(), 1U);
    tapAt(0.2, 0.5);
    EXPECT_EQ(showDesktops(), 1U);
    EXPECT_EQ(missionControls(), 1U);
}

TEST_F(ControllerMoreGesturesTest, ARegionTapWaitsAndIsVetoedByAClickAsTheTapIs) {
    map(MoreGestureSlot::tapLeft, action::showDesktop);

    rest({{1, 0.2, 0.5}}, 0.1);
    lift();
    EXPECT_EQ(showDesktops(), 0U);  // not before the tap's wait
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(down);
    h.send(up);
    settle();

    EXPECT_EQ(showDesktops(), 0U);
    EXPECT_EQ(missionControls(), 0U);
}

TEST_F(ControllerMoreGesturesTest, ATipTapActsAtOnceAndTheRestingFingersLiftIsNoTap) {
    map(MoreGestureSlot::tipTapRight, action::showDesktop);

    rest({{1, 0.4, 0.5}}, 0.35);
    rest({{1, 0.4, 0.5}, {2, 0.6, 0.5}}, 0.08);
    frame({{1, 0.4, 0.5}});
    EXPECT_EQ(showDesktops(), 1U);

    rest({{1, 0.4, 0.5}}, 0.1);
    lift();
    settle();
    EXPECT_EQ(showDesktops(), 1U);
    EXPECT_EQ(missionControls(), 0U);
}

TEST_F(ControllerMoreGesturesTest, ASwipeActsOnceAndSwallowsScrollingUntilTheFingersLift) {
    map(MoreGestureSlot::swipe2Left, action::showDesktop);

    const std::vector<EventDisposition> scrolls = slideTwo(-0.03, 12);
    EXPECT_EQ(scrolls.front(), EventDisposition::pass);  // not yet far enough to be a swipe
    EXPECT_EQ(scrolls.back(), EventDisposition::swallow);
    EXPECT_EQ(showDesktops(), 1U);

    lift();
    FakeTapEvent after = h.mouseEvent(event::scrollWheel);
    EXPECT_EQ(h.send(after), EventDisposition::pass);
    settle();
    EXPECT_EQ(showDesktops(), 1U);
    EXPECT_EQ(missionControls(), 0U);
}

TEST_F(ControllerMoreGesturesTest, ScrollingIsNeverTouchedForAFingerCountWithNoSwipeMapped) {
    map(MoreGestureSlot::swipe1Left, action::showDesktop);

    for (const EventDisposition scroll : slideTwo(-0.03, 12)) {
        EXPECT_EQ(scroll, EventDisposition::pass);
    }
    EXPECT_EQ(showDesktops(), 0U);
}

TEST_F(ControllerMoreGesturesTest, TapAndHoldHoldsTheButtonAndDragsUntilTheFingerLifts) {
    map(MoreGestureSlot::tapHold, action::middle);

    tapThenHold();
    ASSERT_EQ(downs(MouseButton::centre), 1U);
    EXPECT_EQ(h.poster.mouseEvents().front().userData, marker);
    EXPECT_EQ(h.dragger.dragging(), MouseButton::centre);
    EXPECT_EQ(ups(MouseButton::centre), 0U);

    lift();
    settle();
    EXPECT_EQ(ups(MouseButton::centre), 1U);
    EXPECT_EQ(h.dragger.dragging(), std::nullopt);
    // The tap that led the hold was a tap too, done before the finger landed again.
    EXPECT_EQ(missionControls(), 1U);
}

TEST_F(ControllerMoreGesturesTest, APhysicalClickEndsTheHoldWithExactlyOneUp) {
    map(MoreGestureSlot::tapHold, action::middle);
    tapThenHold();

    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    EXPECT_EQ(ups(MouseButton::centre), 1U);
    EXPECT_EQ(h.dragger.dragging(), std::nullopt);

    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(up);
    rest({{2, 0.5, 0.5}}, 0.2);
    lift();
    settle();
    EXPECT_EQ(downs(MouseButton::centre), 1U);
    EXPECT_EQ(ups(MouseButton::centre), 1U);
}

TEST_F(ControllerMoreGesturesTest, SwitchingGesturesOffEndsTheHoldWithExactlyOneUp) {
    map(MoreGestureSlot::tapHold, action::middle);
    tapThenHold();

    h.view.enabled = false;
    h.c().toggle();
    EXPECT_EQ(ups(MouseButton::centre), 1U);

    lift();
    settle();
    EXPECT_EQ(ups(MouseButton::centre), 1U);
}

TEST_F(ControllerMoreGesturesTest, WakingEndsTheHoldWithExactlyOneUp) {
    map(MoreGestureSlot::tapHold, action::middle);
    tapThenHold();

    h.workspace.wake();
    h.queue.runReady();
    EXPECT_EQ(ups(MouseButton::centre), 1U);
    EXPECT_EQ(h.dragger.dragging(), std::nullopt);

    lift();
    settle();
    EXPECT_EQ(ups(MouseButton::centre), 1U);
}

TEST_F(ControllerMoreGesturesTest, AProfileChangeEndsTheHoldWithExactlyOneUp) {
    map(MoreGestureSlot::tapHold, action::middle);
    const Uuid first = h.c().profiles().activeID();
    h.c().profiles().add("Second", true);
    const Uuid second = h.c().profiles().activeID();
    h.c().switchProfileAutomatically(first);
    h.queue.advance(Controller::refreshInterval + 0.01);
    tapThenHold();
    ASSERT_EQ(downs(MouseButton::centre), 1U);

    h.c().switchProfileAutomatically(second);
    EXPECT_EQ(ups(MouseButton::centre), 1U);

    lift();
    settle();
    EXPECT_EQ(downs(MouseButton::centre), 1U);
    EXPECT_EQ(ups(MouseButton::centre), 1U);
}

TEST_F(ControllerMoreGesturesTest, QuittingEndsTheHoldWithExactlyOneUp) {
    map(MoreGestureSlot::tapHold, action::middle);
    tapThenHold();

    h.c().applicationWillTerminate();
    EXPECT_EQ(ups(MouseButton::centre), 1U);
    EXPECT_EQ(h.dragger.dragging(), std::nullopt);
}

TEST_F(ControllerMoreGesturesTest, WhileTactoraIsInFrontNothingIsHeld) {
    map(MoreGestureSlot::tapHold, action::middle);
    h.workspace.active = true;

    tapThenHold();
    lift();
    settle();

    EXPECT_EQ(downs(MouseButton::centre), 0U);
    EXPECT_TRUE(h.dragger.changes.empty());
}

}  // namespace
}  // namespace tactora::testing
