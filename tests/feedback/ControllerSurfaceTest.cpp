#include <gtest/gtest.h>

#include <memory>

#include "app/ControllerSurfaceTest.h"
#include "core/feedback/MenuBarFeedback.h"

namespace tactora::testing {
namespace {

// --- Feedback in the menu bar -----------------------------------------------------------------

std::string statusTitle(const ControllerHarness& harness) {
    return harness.view.statusItem ? harness.view.statusItem->title : "(none)";
}

TEST_F(ControllerSurfaceTest, MenuBarFeedbackIsOffByDefaultAndTheTitleStaysEmpty) {
    h.assign(5, action::copy);
    h.tap(2);
    h.queue.advance(Controller::tapDelay);

    EXPECT_FALSE(h.a().feedback().isOn());
    EXPECT_EQ(h.performedCount(), 2U);
    EXPECT_EQ(statusTitle(h), "");
    EXPECT_FALSE(h.shell.statusMenu.at(2).checked);
}

TEST_F(ControllerSurfaceTest, TheMenuItemTurnsTheFeedbackOverAndRemembersIt) {
    h.c().applicationDidFinishLaunching();
    h.a().feedback().toggle();
    EXPECT_TRUE(h.a().feedback().isOn());
    EXPECT_EQ(h.defaults->integer(std::string(MenuBarFeedback::preferenceKey)), 1);
    EXPECT_EQ(h.shell.statusMenu.at(2),
              (MenuEntry{"menu.feedback", MenuCommand::toggleMenuBarFeedback, "", true}));

    h.a().feedback().toggle();
    EXPECT_FALSE(h.a().feedback().isOn());
    EXPECT_EQ(h.defaults->integer(std::string(MenuBarFeedback::preferenceKey)), 0);
    EXPECT_FALSE(h.shell.statusMenu.at(2).checked);
}

TEST_F(ControllerSurfaceTest, AStoredChoiceIsReadAtStartAndAWrongTypeReadsAsOff) {
    const auto make = [this] {
        return MenuBarFeedback::create(h.defaults, h.c(), h.clock, h.queue);
    };
    const std::string key(MenuBarFeedback::preferenceKey);
    h.defaults->setInteger(key, 1);
    EXPECT_TRUE(make()->isOn());
    h.defaults->setString(key, "yes");
    EXPECT_FALSE(make()->isOn());
    h.defaults->setData(key, {1});
    EXPECT_FALSE(make()->isOn());
}

TEST_F(ControllerSurfaceTest, ATapShowsItsFingerCountInTheMenuBarForOneSecond) {
    h.a().feedback().toggle();
    h.assign(6, action::copy);
    h.tap(3);
    EXPECT_EQ(statusTitle(h), "");

    h.queue.advance(Controller::tapDelay);
    const double firedAt = h.clock.now;
    EXPECT_EQ(statusTitle(h), "3");
    runUntil(firedAt + MenuBarFeedback::duration - 0.001);
    EXPECT_EQ(statusTitle(h), "3");
    runUntil(firedAt + MenuBarFeedback::duration);
    EXPECT_EQ(statusTitle(h), "");
}

TEST_F(ControllerSurfaceTest, FeedbackOffAndOnWithinItsTimeBringsNoOldCountBack) {
    h.a().feedback().toggle();
    h.assign(6, action::copy);
    h.tap(3);
    h.queue.advance(Controller::tapDelay);
    ASSERT_EQ(statusTitle(h), "3");
    h.a().feedback().toggle();
    h.queue.advance(0.2);
    h.a().feedback().toggle();
    h.c().refresh();
    EXPECT_EQ(statusTitle(h), "");
}

TEST_F(ControllerSurfaceTest, AnInterceptedClickShowsItsFingerCountAtOnce) {
    h.a().feedback().toggle();
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.runReady();  // what the tap decided is told once it has answered

    EXPECT_EQ(statusTitle(h), "2");
}

TEST_F(ControllerSurfaceTest, GesturesThatDoNothingLeaveTheMenuBarAlone) {
    h.a().feedback().toggle();
    h.tap(2);
    h.queue.advance(0.2);
    h.rest(1);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.runReady();

    EXPECT_EQ(statusTitle(h), "");
}

TEST_F(ControllerSurfaceTest, AStaleTapLeavesTheMenuBarAlone) {
    h.a().feedback().toggle();
    h.assign(5, action::copy);
    h.tap(2);
    h.c().pause();
    h.queue.advance(0.5);

    EXPECT_EQ(h.performedCount(), 0U);
    EXPECT_EQ(statusTitle(h), "");
}

TEST_F(ControllerSurfaceTest, TurningTheFeedbackOffEndsACountShownNow) {
    h.a().feedback().toggle();
    h.assign(5, action::copy);
    h.tap(2);
    h.queue.advance(Controller::tapDelay);
    ASSERT_EQ(statusTitle(h), "2");

    h.a().feedback().toggle();
    EXPECT_EQ(statusTitle(h), "");
}

}  // namespace
}  // namespace tactora::testing
