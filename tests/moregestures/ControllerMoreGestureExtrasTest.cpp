// The gestures beyond the eight mapped to the further actions, through the running program: each
// carries out its action with its value as the eight rows do.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/actions/MouseEventType.h"
#include "core/app/Globals.h"
#include "core/profiles/GestureSlot.h"
#include "core/profiles/MoreGestureSlot.h"
#include "moreactions/ExtraActionsHarness.h"

namespace tactora::testing {
namespace {

using Fingers = std::vector<Finger>;

class ControllerMoreGestureExtrasTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        h.assign(slot::forTap(1), action::missionControl);
    }

    // Gives `slot` a further action in the active profile; the program picks it up at its next
    // refresh.
    void map(MoreGestureSlot slot, ExtraAction action, const std::string& value = {}) {
        h.c().profiles().setMoreExtra({action, value}, slot);
        h.queue.advance(Controller::refreshInterval + 0.01);
    }

    void frame(const Fingers& fingers) { h.c().receive(fingers, {}); }
    void rest(const Fingers& fingers, double duration) {
        for (double elapsed = 0; elapsed < duration; elapsed += 0.01) {
            frame(fingers);
            h.queue.advance(0.01);
        }
    }
    void lift() { frame({}); }
    void settle() { h.queue.advance(Controller::tapDelay + 0.01); }
    void tapAt(double x, double y) {
        rest({{1, x, y}}, 0.1);
        lift();
    }
    // Two fingers moving left together, far enough to be a swipe.
    void swipeTwoLeft() {
        double x = 0.5;
        for (int step = 0; step < 12; ++step) {
            frame({{1, x, 0.5}, {2, x + 0.1, 0.5}});
            h.queue.advance(0.01);
            x -= 0.03;
        }
        lift();
    }
    // A one-finger tap, then the finger landing again and resting long enough to hold.
    void tapThenHold() {
        rest({{1, 0.5, 0.5}}, 0.1);
        lift();
        h.queue.advance(0.1);
        rest({{2, 0.5, 0.5}}, 0.45);
    }

    std::size_t missionControls() const {
        return static_cast<std::size_t>(std::ranges::count(h.poster.dockRequests, false));
    }

    ExtraActionsHarness h;
};

TEST_F(ControllerMoreGestureExtrasTest, ARegionTapOpensItsApplicationAfterTheTapsWait) {
    h.opener.applications.insert("com.apple.Safari");
    map(MoreGestureSlot::tapLeft, ExtraAction::openApplication, "com.apple.Safari");

    tapAt(0.2, 0.5);
    EXPECT_TRUE(h.opener.opened.empty());  // not before the tap's wait
    settle();
    EXPECT_EQ(h.opener.opened,
              (std::vector<FakeOpener::Opened>{{"application", "com.apple.Safari"}}));
    EXPECT_EQ(missionControls(), 0U);

    // The other half keeps the one-finger tap's own action.
    tapAt(0.8, 0.5);
    settle();
    EXPECT_EQ(h.opener.opened.size(), 1U);
    EXPECT_EQ(missionControls(), 1U);
}

TEST_F(ControllerMoreGestureExtrasTest, ARegionTapWithAFurtherActionIsVetoedByAClickAsTheTapIs) {
    map(MoreGestureSlot::tapLeft, ExtraAction::playPause);

    tapAt(0.2, 0.5);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    settle();
    EXPECT_TRUE(h.systemEvents.events.empty());
}

TEST_F(ControllerMoreGestureExtrasTest, ASwipeOpensItsAddressAtOnceAndOnce) {
    map(MoreGestureSlot::swipe2Left, ExtraAction::openAddress, "https://example.com/a");

    swipeTwoLeft();
    EXPECT_EQ(h.opener.opened,
              (std::vector<FakeOpener::Opened>{{"address", "https://example.com/a"}}));
    settle();
    EXPECT_EQ(h.opener.opened.size(), 1U);
}

TEST_F(ControllerMoreGestureExtrasTest, ATipTapPressesItsMediaKey) {
    map(MoreGestureSlot::tipTapRight, ExtraAction::playPause);

    rest({{1, 0.4, 0.5}}, 0.35);
    rest({{1, 0.4, 0.5}, {2, 0.6, 0.5}}, 0.08);
    frame({{1, 0.4, 0.5}});
    ASSERT_EQ(h.systemEvents.events.size(), 2U);
    EXPECT_EQ(h.systemEvents.events[0].data1, 0x100A00);
    EXPECT_EQ(h.systemEvents.events[1].data1, 0x100B00);
}

TEST_F(ControllerMoreGestureExtrasTest, AFurtherActionWhoseValueIsGoneIsReportedAndNothingOpens) {
    map(MoreGestureSlot::swipe2Left, ExtraAction::openApplication, "com.example.Gone");

    swipeTwoLeft();
    EXPECT_TRUE(h.opener.opened.empty());
    EXPECT_EQ(h.view.status, "no app com.example.Gone");
}

TEST_F(ControllerMoreGestureExtrasTest, TapAndHoldRunsAFurtherActionOnceAndHoldsNothing) {
    h.opener.files.insert("/Users/a/notes.txt");
    map(MoreGestureSlot::tapHold, ExtraAction::openFile, "/Users/a/notes.txt");

    tapThenHold();
    EXPECT_EQ(h.opener.opened, (std::vector<FakeOpener::Opened>{{"file", "/Users/a/notes.txt"}}));
    rest({{2, 0.5, 0.5}}, 0.5);
    lift();
    settle();
    EXPECT_EQ(h.opener.opened.size(), 1U);
    EXPECT_TRUE(h.dragger.changes.empty());
    EXPECT_EQ(h.a().moreGestures().heldButton(), std::nullopt);
}

TEST_F(ControllerMoreGestureExtrasTest, TapAndHoldWithAModifierClickClicksOnceWithItsModifier) {
    map(MoreGestureSlot::tapHold, ExtraAction::commandClick);

    tapThenHold();
    lift();
    settle();
    const std::vector<MouseButtonEvent> expected = {
        {.type = event::leftMouseDown, .clickState = 1, .userData = marker, .flags = 0x100000},
        {.type = event::leftMouseUp, .clickState = 1, .userData = marker, .flags = 0x100000},
    };
    EXPECT_EQ(h.poster.mouseEvents(), expected);
    EXPECT_TRUE(h.dragger.changes.empty());
}

}  // namespace
}  // namespace tactora::testing
