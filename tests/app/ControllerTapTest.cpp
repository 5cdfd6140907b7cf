#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <utility>

#include "app/ControllerHarness.h"
#include "core/app/ButtonRewrite.h"

namespace tactora::testing {
namespace {

class ControllerTapTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        h.assign(1, action::right);
    }

    // Sends a down, drag and up of each button and a scroll, all from the mouse with two
    // fingers resting, and expects each to pass untouched without counting as a click.
    void expectEveryEventPassesUntouched() {
        const std::pair<EventType, std::int64_t> events[] = {
            {event::leftMouseDown, 0},  {event::leftMouseDragged, 0},  {event::leftMouseUp, 0},
            {event::rightMouseDown, 1}, {event::rightMouseDragged, 1}, {event::rightMouseUp, 1},
            {event::scrollWheel, 0},
        };
        h.rest(2);
        for (const auto& [type, button] : events) {
            FakeTapEvent sent = h.mouseEvent(type, button);
            EXPECT_EQ(h.send(sent), EventDisposition::pass) << type;
            EXPECT_EQ(sent.changes, 0) << type;
        }
        EXPECT_EQ(h.c().state().lastClick, 0);
        EXPECT_FALSE(h.c().state().gesture.clicked);
        EXPECT_FALSE(h.c().state().gesture.moved);
        EXPECT_TRUE(h.c().state().presses.empty());
    }

    ControllerHarness h;
};

TEST_F(ControllerTapTest, InstallingCreatesTheTapOnceForButtonsDragsAndScroll) {
    EXPECT_EQ(h.eventTap.creations, 1);
    EXPECT_EQ(h.eventTap.createdMask, 0x4000DEU);
    EXPECT_TRUE(h.eventTap.enabled);

    h.c().pause();
    EXPECT_FALSE(h.eventTap.enabled);
    EXPECT_TRUE(h.c().installTap());
    EXPECT_EQ(h.eventTap.creations, 1);
    EXPECT_TRUE(h.eventTap.enabled);
}

TEST(ControllerTapInstallTest, FailedCreationReturnsFalseAndIsTriedAgainNextTime) {
    ControllerHarness h;
    h.eventTap.createSucceeds = false;
    EXPECT_FALSE(h.c().installTap());
    EXPECT_FALSE(h.eventTap.enabled);

    h.eventTap.createSucceeds = true;
    EXPECT_TRUE(h.c().installTap());
    EXPECT_EQ(h.eventTap.creations, 2);
    EXPECT_TRUE(h.eventTap.enabled);
}

TEST_F(ControllerTapTest, MarkedEventsPassUntouchedEvenFromTheMouse) {
    h.rest(2);
    for (const EventType type :
         {event::leftMouseDown, event::leftMouseDragged, event::leftMouseUp, event::scrollWheel}) {
        FakeTapEvent sent = h.mouseEvent(type);
        sent.fields.at(42) = marker;  // the source user data field

        EXPECT_EQ(h.send(sent), EventDisposition::pass) << type;
        EXPECT_EQ(sent.changes, 0) << type;
    }
    EXPECT_TRUE(h.c().state().presses.empty());
    EXPECT_EQ(h.c().state().lastClick, 0);
    EXPECT_FALSE(h.c().state().gesture.moved);
}

TEST_F(ControllerTapTest, EveryEventPassesWithGesturesSwitchedOff) {
    h.c().pause();
    expectEveryEventPassesUntouched();
}

TEST_F(ControllerTapTest, EveryEventPassesWhileAShortcutIsRecorded) {
    h.dialogs.save = false;
    bool ran = false;
    h.dialogs.whileOpen = [&] {
        expectEveryEventPassesUntouched();
        ran = true;
    };
    h.c().beginRecording(0);

    EXPECT_TRUE(ran);
}

TEST_F(ControllerTapTest, EveryEventPassesWhileTheProgramIsActive) {
    h.workspace.active = true;
    expectEveryEventPassesUntouched();
}

TEST_F(ControllerTapTest, TwoFingerPressBecomesARightPressThroughDragsAndUp) {
    h.rest(2);
    h.queue.advance(0.1);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    ASSERT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.type, event::rightMouseDown);
    EXPECT_EQ(down.button(), 1);
    EXPECT_EQ(h.c().state().lastGesture, "click 2");
    EXPECT_TRUE(h.c().state().gesture.clicked);

    for (int i = 0; i < 3; ++i) {
        FakeTapEvent drag = h.mouseEvent(event::leftMouseDragged);
        ASSERT_EQ(h.send(drag), EventDisposition::pass);
        EXPECT_EQ(drag.type, event::rightMouseDragged);
        EXPECT_EQ(drag.button(), 1);
    }
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    ASSERT_EQ(h.send(up), EventDisposition::pass);
    EXPECT_EQ(up.type, event::rightMouseUp);
    EXPECT_EQ(up.button(), 1);
    EXPECT_TRUE(h.c().state().presses.empty());
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerTapTest, RewritingKeepsEverythingElseAndAddsNoMarker) {
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    down.fields.at(event::clickState) = 2;
    h.send(down);

    EXPECT_EQ(down.changes, 2);
    EXPECT_EQ(down.fields.at(event::clickState), 2);
    EXPECT_EQ(down.fields.at(event::sourceUserData), 0);
    EXPECT_EQ(down.fields.at(event::senderID), static_cast<std::int64_t>(mouseSender));
}

TEST_F(ControllerTapTest, PressWithContactAQuarterSecondOldPassesAsALeftClick) {
    h.rest(2);
    h.clock.now = h.c().state().lastFrame + 0.25;
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);

    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.type, event::leftMouseDown);
    EXPECT_EQ(down.changes, 0);
    EXPECT_TRUE(h.c().state().presses.empty());
    EXPECT_EQ(h.c().state().lastClick, h.clock.now);
    EXPECT_TRUE(h.c().state().gesture.clicked);
}

TEST_F(ControllerTapTest, PressWithContactJustUnderAQuarterSecondOldIsRewritten) {
    h.rest(2);
    h.clock.now = h.c().state().lastFrame + 0.2499;
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);

    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.type, event::rightMouseDown);
}

TEST_F(ControllerTapTest, PressWithNFingersUsesSlotNMinusOne) {
    const std::array<ActionIndex, 4> actions = {action::middle, action::right, action::copy,
                                                action::left};
    for (std::size_t slot = 0; slot < actions.size(); ++slot) {
        h.assign(static_cast<std::int64_t>(slot), actions.at(slot));
    }
    for (std::int32_t fingers = 1; fingers <= 4; ++fingers) {
        h.rest(fingers);
        FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
        h.send(down);

        EXPECT_EQ(h.c().state().lastGesture, "click " + std::to_string(fingers));
        ASSERT_EQ(h.c().state().presses.count(0), 1U);
        EXPECT_EQ(h.c().state().presses.at(0).action,
                  actions.at(static_cast<std::size_t>(fingers - 1)));
        FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
        h.send(up);
        h.queue.runReady();
    }
}

TEST_F(ControllerTapTest, CustomActionOnAClickSlotSendsThatSlotsShortcutOnRelease) {
    h.c().profiles().setShortcut(SavedShortcut(38, 0x100000, "⌘J"), 1);
    h.c().profiles().setShortcut(SavedShortcut(40, 0x100000, "⌘K"), 5);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::swallow);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(up), EventDisposition::swallow);
    h.queue.runReady();

    EXPECT_EQ(h.poster.keyEvents(),
              (std::vector<KeyEvent>{
                  {.keyCode = 38, .down = true, .flags = 0x100000, .userData = marker},
                  {.keyCode = 38, .down = false, .flags = 0x100000, .userData = marker},
              }));
    EXPECT_EQ(h.c().state().lastAction, "· ⌘J");
}

TEST_F(ControllerTapTest, ClickSlotMappedToDefaultPasses) {
    h.rest(3);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);

    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.changes, 0);
    EXPECT_EQ(h.c().state().lastGesture, "click 3");
    EXPECT_TRUE(h.c().state().presses.empty());
}

TEST_F(ControllerTapTest, PressWithNoFingersPasses) {
    h.assign(0, action::right);
    h.rest(1);
    h.frame(0);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);

    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.changes, 0);
}

TEST_F(ControllerTapTest, PressWithFiveFingersPasses) {
    for (std::int64_t slot = 0; slot < 4; ++slot) {
        h.assign(slot, action::right);
    }
    h.rest(5);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);

    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.changes, 0);
    EXPECT_TRUE(h.c().state().presses.empty());
}

TEST_F(ControllerTapTest, CopyOnAClickSlotSwallowsThePressAndCopiesOnceAfterTheUp) {
    h.assign(1, action::copy);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::swallow);
    for (int i = 0; i < 3; ++i) {
        FakeTapEvent drag = h.mouseEvent(event::leftMouseDragged);
        EXPECT_EQ(h.send(drag), EventDisposition::swallow);
    }
    h.queue.advance(0.5);
    EXPECT_TRUE(h.poster.posted.empty());  // held: nothing is performed on the press itself
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(up), EventDisposition::swallow);

    EXPECT_TRUE(h.poster.posted.empty());  // not inside the tap's callback either
    h.queue.runReady();
    EXPECT_EQ(h.poster.keyEvents(),
              (std::vector<KeyEvent>{
                  {.keyCode = 8, .down = true, .flags = 0x100000, .userData = marker},
                  {.keyCode = 8, .down = false, .flags = 0x100000, .userData = marker},
              }));
    EXPECT_TRUE(h.poster.mouseEvents().empty());
    h.queue.advance(1);
    EXPECT_EQ(h.poster.keyEvents().size(), 2U);
}

TEST_F(ControllerTapTest, SwallowedPressIsNotPerformedWhenItsContextWentStale) {
    h.assign(1, action::copy);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.workspace.frontmost = 7;
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(up), EventDisposition::swallow);
    h.queue.runReady();

    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerTapTest, DoubleClickOnAClickSlotIsPerformedOnRelease) {
    h.assign(1, action::doubleClick);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::swallow);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(up), EventDisposition::swallow);
    h.queue.runReady();

    EXPECT_EQ(h.poster.mouseEvents().size(), 4U);
}

TEST_F(ControllerTapTest, ScrollFromTheMouseSetsMovedAndPasses) {
    h.rest(1);
    FakeTapEvent scroll = h.mouseEvent(event::scrollWheel);

    EXPECT_EQ(h.send(scroll), EventDisposition::pass);
    EXPECT_EQ(scroll.changes, 0);
    EXPECT_TRUE(h.c().state().gesture.moved);
    h.queue.advance(0.1);
    h.frame(0);
    EXPECT_EQ(h.c().state().lastGesture, "—");
}

TEST_F(ControllerTapTest, ReleasingPressesPostsOneUpForTheTargetWithClickStateOne) {
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    down.fields.at(event::clickState) = 3;
    h.send(down);
    h.c().releasePresses();

    EXPECT_EQ(h.poster.mouseEvents(), (std::vector<MouseButtonEvent>{{.type = event::rightMouseUp,
                                                                      .button = MouseButton::right,
                                                                      .clickState = 1,
                                                                      .userData = marker}}));
    EXPECT_TRUE(h.c().state().presses.empty());
}

TEST_F(ControllerTapTest, ReleasingDropsSwallowedPressesWithoutPerformingThem) {
    h.assign(1, action::copy);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.c().releasePresses();
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);

    EXPECT_EQ(h.send(up), EventDisposition::pass);
    h.queue.runReady();
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerTapTest, TapDisabledByTimeoutSwitchesOffAndSaysPaused) {
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    FakeTapEvent notice(event::tapDisabledByTimeout, 0, 0);

    EXPECT_EQ(h.send(notice), EventDisposition::pass);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "error.paused");
    EXPECT_EQ(h.poster.mouseEvents().size(), 1U);
    EXPECT_FALSE(h.log.contains("tap.enable"));
}

TEST_F(ControllerTapTest, TapDisabledByUserInputSwitchesOffAndSaysPaused) {
    FakeTapEvent notice(event::tapDisabledByUserInput, 0, 0);

    EXPECT_EQ(h.send(notice), EventDisposition::pass);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "error.paused");
}

TEST_F(ControllerTapTest, EventsOfOtherDevicesPassAndTheSenderIsLookedUpOnlyWhenItChanges) {
    h.rest(2);
    for (int i = 0; i < 3; ++i) {
        FakeTapEvent down(event::leftMouseDown, 0, otherSender);
        EXPECT_EQ(h.send(down), EventDisposition::pass);
        EXPECT_EQ(down.changes, 0);
    }
    EXPECT_EQ(h.sensor.lookups, 1);
    EXPECT_EQ(h.c().state().lastSender, otherSender);
    EXPECT_FALSE(h.c().state().senderIsMouse);

    FakeTapEvent fromMouse = h.mouseEvent(event::leftMouseDown);
    h.send(fromMouse);
    FakeTapEvent again = h.mouseEvent(event::leftMouseUp);
    h.send(again);
    EXPECT_EQ(h.sensor.lookups, 2);
    EXPECT_TRUE(h.c().state().senderIsMouse);
}

TEST_F(ControllerTapTest, UpWithoutItsDownPassesUnchanged) {
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(up), EventDisposition::pass);
    EXPECT_EQ(up.changes, 0);
}

TEST_F(ControllerTapTest, APressReplacesTheOneHeldUnderTheSameButton) {
    h.rest(2);
    FakeTapEvent first = h.mouseEvent(event::leftMouseDown);
    h.send(first);
    h.assign(1, action::middle);
    FakeTapEvent second = h.mouseEvent(event::leftMouseDown);
    h.send(second);

    ASSERT_EQ(h.c().state().presses.size(), 1U);
    EXPECT_EQ(h.c().state().presses.at(0).button, MouseButton::centre);
    EXPECT_EQ(second.type, event::otherMouseDown);
    EXPECT_EQ(second.button(), 2);
}

TEST_F(ControllerTapTest, RightButtonPressesAreKeptUnderTheirOwnButton) {
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::rightMouseDown, 1);
    h.send(down);

    ASSERT_EQ(h.c().state().presses.count(1), 1U);
    EXPECT_EQ(h.c().state().presses.at(1).action, action::right);
    EXPECT_EQ(h.c().state().presses.at(1).context.generation, h.c().state().actionGeneration);
}

TEST_F(ControllerTapTest, RewriteChoosesDragOverDown) {
    FakeTapEvent event = h.mouseEvent(event::leftMouseDown);
    rewriteButton(event, MouseButton::centre, true, true);
    EXPECT_EQ(event.type, event::otherMouseDragged);
    rewriteButton(event, MouseButton::right, false, false);
    EXPECT_EQ(event.type, event::rightMouseUp);
    EXPECT_EQ(event.button(), 1);
}

}  // namespace
}  // namespace tactora::testing
