#include <gtest/gtest.h>

#include "app/ControllerHarness.h"
#include "core/app/Globals.h"

namespace tactora::testing {
namespace {

class ControllerSensorTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        h.assign(5, action::copy);
    }

    ControllerHarness h;
};

const std::vector<KeyEvent> copyPress = {
    {.keyCode = 8, .down = true, .flags = 0x100000, .userData = marker},
    {.keyCode = 8, .down = false, .flags = 0x100000, .userData = marker},
};

TEST_F(ControllerSensorTest, TwoFingerTapPerformsSlotFiveActionAfterTheDelay) {
    h.tap(2);

    EXPECT_EQ(h.c().state().lastGesture, "tap 2");
    ASSERT_EQ(h.queue.delays.size(), 1U);
    EXPECT_DOUBLE_EQ(h.queue.delays.front(), 0.08);
    h.queue.advance(0.07);
    EXPECT_TRUE(h.poster.posted.empty());
    h.queue.advance(0.02);
    EXPECT_EQ(h.poster.keyEvents(), copyPress);
}

TEST_F(ControllerSensorTest, TapOfNFingersUsesSlotNPlusThree) {
    h.assign(4, action::paste);
    h.assign(6, action::undo);
    h.assign(7, action::cut);
    for (std::int32_t fingers = 1; fingers <= 4; ++fingers) {
        h.tap(fingers);
        h.queue.advance(0.1);
    }

    const auto keys = h.poster.keyEvents();
    ASSERT_EQ(keys.size(), 8U);
    EXPECT_EQ(keys[0].keyCode, 9);  // one finger: slot 4, paste
    EXPECT_EQ(keys[2].keyCode, 8);  // two: slot 5, copy
    EXPECT_EQ(keys[4].keyCode, 6);  // three: slot 6, undo
    EXPECT_EQ(keys[6].keyCode, 7);  // four: slot 7, cut
}

TEST_F(ControllerSensorTest, TapSendsTheShortcutRecordedForItsOwnSlot) {
    h.c().profiles().setShortcut(SavedShortcut(38, 0x100000, "⌘J"), 1);
    h.c().profiles().setShortcut(SavedShortcut(40, 0x100000, "⌘K"), 5);
    h.tap(2);
    h.queue.advance(0.1);

    EXPECT_EQ(h.poster.keyEvents(),
              (std::vector<KeyEvent>{
                  {.keyCode = 40, .down = true, .flags = 0x100000, .userData = marker},
                  {.keyCode = 40, .down = false, .flags = 0x100000, .userData = marker},
              }));
    EXPECT_EQ(h.c().state().lastAction, "· ⌘K");
}

TEST_F(ControllerSensorTest, TapVetoedByClickArrivingAfterTheRelease) {
    h.tap(2);
    h.queue.advance(0.05);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::pass);
    h.queue.advance(0.1);

    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, TouchThatClickedNeverAlsoYieldsATap) {
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    ASSERT_EQ(h.send(down), EventDisposition::pass);
    ASSERT_EQ(down.type, event::rightMouseDown);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(up);
    h.queue.advance(0.1);
    h.frame(0);
    h.queue.advance(0.2);

    EXPECT_EQ(h.c().state().lastGesture, "click 2");
    EXPECT_TRUE(h.queue.delays.empty());
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, TapVetoedByClickJustBeforeTheTouchBegan) {
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.advance(0.01);
    h.tap(2, 0.05);
    h.queue.advance(0.1);

    EXPECT_EQ(h.c().state().lastGesture, "tap 2");
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, ClickLongerThanTheDelayBeforeReleaseDoesNotVeto) {
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.advance(0.02);
    h.tap(2, 0.1);
    h.queue.advance(0.1);

    EXPECT_EQ(h.poster.keyEvents(), copyPress);
}

TEST_F(ControllerSensorTest, TapRecognisedWithTheSwitchOffPerformsNothing) {
    h.c().pause();
    h.tap(2);
    h.queue.advance(0.2);

    EXPECT_EQ(h.c().state().lastGesture, "tap 2");
    EXPECT_TRUE(h.queue.delays.empty());
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, TapRecognisedWhileAShortcutIsRecordedPerformsNothing) {
    h.dialogs.save = false;
    h.dialogs.whileOpen = [this] { h.tap(2); };
    h.c().beginRecording(0);
    h.queue.advance(0.2);

    EXPECT_EQ(h.c().state().lastGesture, "tap 2");
    EXPECT_TRUE(h.queue.delays.empty());
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, TapRecognisedWhileTheProgramItselfIsInFrontPerformsNothing) {
    h.workspace.active = true;
    h.tap(2);
    h.queue.advance(0.2);

    EXPECT_EQ(h.c().state().lastGesture, "tap 2");
    EXPECT_TRUE(h.queue.delays.empty());
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, ProfileSwitchWithinTheWaitCancelsTheTap) {
    const Uuid first = h.c().profiles().activeID();
    h.c().profiles().add("Second", true);
    h.c().profiles().select(first);
    const Uuid second = h.c().profiles().profiles().back().id;

    h.tap(2);
    h.queue.advance(0.04);
    h.view.profileChoice = second.text();
    h.c().selectProfile();
    h.queue.advance(0.1);

    EXPECT_EQ(h.c().profiles().activeID(), second);
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, PauseWithinTheWaitCancelsTheTap) {
    h.tap(2);
    h.queue.advance(0.04);
    h.c().pause();
    h.view.enabled = true;  // even switched back on at once, the old tap stays cancelled
    h.c().toggle();
    h.queue.advance(0.1);

    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, AnotherApplicationInFrontWithinTheWaitCancelsTheTap) {
    h.tap(2);
    h.queue.advance(0.04);
    h.workspace.frontmost = 99;
    h.queue.advance(0.1);

    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, TapOutlivingTheControllerDoesNothing) {
    h.tap(2);
    clearApplicationController();
    h.app.reset();
    h.controller.reset();
    h.queue.advance(0.1);

    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerSensorTest, WakeReconnectsTheSensorAndResetsTheRecogniser) {
    h.rest(2);
    ASSERT_TRUE(h.c().state().gesture.began.has_value());
    h.workspace.wake();

    EXPECT_EQ(h.log.count("sensor.start"), 1);
    EXPECT_EQ(h.c().state().gesture, GestureState());
    EXPECT_EQ(h.c().state().lastFrame, 0);
    EXPECT_FALSE(h.view.enabled);
}

TEST_F(ControllerSensorTest, ReceiveStampsEveryFrameIncludingEmptyOnes) {
    const double start = h.clock.now;
    h.rest(1);
    EXPECT_EQ(h.c().state().lastFrame, start);
    h.queue.advance(0.5);
    h.frame(0);
    EXPECT_EQ(h.c().state().lastFrame, h.clock.now);
    EXPECT_GT(h.c().state().lastFrame, start);
}

TEST_F(ControllerSensorTest, FramesReachTheControllerOnlyThroughTheMainQueue) {
    const std::int32_t ids[] = {1, 2};
    const float xs[] = {0.5F, 0.6F};
    const float ys[] = {0.5F, 0.5F};
    Controller::frameCallback(2, ids, xs, ys, nullptr);

    EXPECT_EQ(h.c().state().gesture.count, 0);
    h.queue.runReady();
    EXPECT_EQ(h.c().state().gesture.count, 2);
}

TEST_F(ControllerSensorTest, FrameWithMissingArraysIsAnEmptyFrame) {
    h.rest(2);
    const float xs[] = {0.5F, 0.6F};
    Controller::frameCallback(2, nullptr, xs, xs, nullptr);
    h.queue.runReady();

    EXPECT_EQ(h.c().state().gesture.count, 0);
    EXPECT_FALSE(h.c().state().gesture.began.has_value());
}

TEST_F(ControllerSensorTest, FrameBeyondSixteenContactsKeepsSixteen) {
    h.frame(20);
    EXPECT_EQ(h.c().state().gesture.count, 16);
    EXPECT_TRUE(h.c().state().gesture.invalid);
}

TEST(ControllerSensorDeathTest, NegativeContactCountStopsTheProgram) {
    EXPECT_DEATH(Controller::frameCallback(-1, nullptr, nullptr, nullptr, nullptr), "");
}

TEST(ControllerReconnectTest, ShowsTheSensorStatusWithItsErrorCode) {
    ControllerHarness h;
    h.sensor.startSucceeds = false;
    h.sensor.statusKey = "sensor.blocked";
    h.sensor.error = 42;
    h.c().reconnect();

    EXPECT_FALSE(h.c().state().ready);
    EXPECT_EQ(h.view.status, "blocked 42");
    EXPECT_EQ(h.sensor.callback, &Controller::frameCallback);
}

TEST(ControllerReconnectTest, PausesResetsAndStartsInThatOrder) {
    ControllerHarness h;
    h.launchAndSwitchOn();
    h.rest(2);
    h.c().reconnect();

    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"tap.disable", "sensor.start"}));
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.c().state().gesture, GestureState());
    EXPECT_TRUE(h.c().state().ready);
}

}  // namespace
}  // namespace tactora::testing
