#include <gtest/gtest.h>

#include "app/ControllerHarness.h"

namespace tactora::testing {
namespace {

class ControllerStatusTest : public ::testing::Test {
  protected:
    ControllerHarness h;
};

TEST_F(ControllerStatusTest, LiveLineStartsWithNoFingersAndDashes) {
    EXPECT_EQ(h.view.live, "0 | — | —");
}

TEST_F(ControllerStatusTest, LiveLineShowsZeroFingersOnceHalfASecondPassesWithoutAFrame) {
    h.launchAndSwitchOn();
    h.assign(5, action::showDesktop);
    h.tap(2);
    h.queue.advance(0.1);
    ASSERT_EQ(h.c().state().lastAction, "action.sent");
    h.rest(3);
    const double frameTime = h.c().state().lastFrame;

    h.clock.now = frameTime + 0.4999;
    h.c().refresh();
    EXPECT_EQ(h.view.live, "3 | tap 2 | action.sent");

    h.clock.now = frameTime + 0.5;
    h.c().refresh();
    EXPECT_EQ(h.view.live, "0 | tap 2 | action.sent");
}

TEST_F(ControllerStatusTest, PermissionLineShowsEachState) {
    h.permissions.inputMonitoring = false;
    h.c().refresh();
    EXPECT_EQ(h.view.permission, "AX ok IM pending");

    h.permissions.accessibility = false;
    h.permissions.inputMonitoring = true;
    h.c().refresh();
    EXPECT_EQ(h.view.permission, "AX pending IM ok");
}

TEST_F(ControllerStatusTest, SwitchedOffStatusItemShowsTheOutlineAndThePauseWord) {
    h.c().applicationDidFinishLaunching();
    h.c().updateMenuIcon();

    ASSERT_TRUE(h.view.statusItem.has_value());
    EXPECT_EQ(*h.view.statusItem, (StatusItemAppearance{"computermouse", "Tactora",
                                                        "Tactora · menu.pause · Default", ""}));
}

TEST_F(ControllerStatusTest, SwitchedOnStatusItemShowsTheFilledSymbolAndActiveProfile) {
    h.launchAndSwitchOn();
    h.c().profiles().rename("Work");
    h.c().refresh();

    EXPECT_EQ(*h.view.statusItem, (StatusItemAppearance{"computermouse.fill", "Tactora",
                                                        "Tactora · menu.active · Work", ""}));
}

TEST_F(ControllerStatusTest, StatusItemIsSetOnlyWhenItsAppearanceChanges) {
    h.c().applicationDidFinishLaunching();
    ASSERT_EQ(h.log.count("view.setStatusItem"), 1);

    for (int tick = 0; tick < 25; ++tick) {
        h.queue.advance(Controller::refreshInterval);
    }
    h.c().updateMenuIcon();
    EXPECT_EQ(h.log.count("view.setStatusItem"), 1);
}

TEST_F(ControllerStatusTest, StatusItemIsSetAgainWhenTheSwitchOrTheProfileChanges) {
    h.launchAndSwitchOn();
    h.c().refresh();
    h.c().refresh();
    ASSERT_EQ(h.log.count("view.setStatusItem"), 1);
    EXPECT_EQ(h.view.statusItem->symbolName, "computermouse.fill");

    h.c().pause();
    h.c().refresh();
    EXPECT_EQ(h.log.count("view.setStatusItem"), 2);
    EXPECT_EQ(h.view.statusItem->symbolName, "computermouse");

    h.c().profiles().rename("Work");
    h.c().refresh();
    h.c().refresh();
    EXPECT_EQ(h.log.count("view.setStatusItem"), 3);
    EXPECT_EQ(h.view.statusItem->toolTip, "Tactora · menu.pause · Work");
}

TEST_F(ControllerStatusTest, StatusItemIsNotDrawnBeforeItExists) {
    h.c().refresh();
    EXPECT_FALSE(h.view.statusItem.has_value());
}

}  // namespace
}  // namespace tactora::testing
