#include <gtest/gtest.h>

#include <functional>

#include "app/ControllerHarness.h"
#include "core/app/AppMenus.h"
#include "core/app/SettingsWindowTexts.h"

namespace tactora::testing {
namespace {

class ControllerLifecycleTest : public ::testing::Test {
  protected:
    // Switches on, holds a two-finger press rewritten to a right press, and leaves a
    // two-finger tap (slot 5: copy) waiting to be performed.
    void holdAPressAndLeaveATapPending() {
        h.launchAndSwitchOn();
        h.assign(1, action::right);
        h.assign(5, action::copy);
        h.rest(2);
        FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
        ASSERT_EQ(h.send(down), EventDisposition::pass);
        ASSERT_EQ(h.c().state().presses.size(), 1U);
        h.queue.advance(0.2);
        h.frame(0);
        h.tap(2);
        ASSERT_EQ(h.queue.delays, (std::vector<double>{0.08}));
        h.queue.advance(0.04);
    }

    ControllerHarness h;
};

TEST_F(ControllerLifecycleTest, LaunchingBuildsConnectsAndShowsInOrder) {
    h.c().applicationDidFinishLaunching();

    EXPECT_EQ(h.log.calls, (std::vector<std::string>{
                               "workspace.instanceProcessIDs",
                               "shell.setRegularActivationPolicy",
                               "shell.applyApplicationIcon",
                               "shell.buildMainMenu",
                               "shell.addMainMenu",
                               "shell.addMainMenu",
                               "shell.buildWindow",
                               "shell.createStatusItem",
                               "view.setStatusItem",
                               "shell.buildStatusMenu",
                               "sensor.start",
                               "workspace.observeWake",
                               "workspace.observeShowRequests",
                               "workspace.observeFrontmostApplication",
                               "shell.showWindow",
                               "workspace.activate",
                           }));
    EXPECT_EQ(h.queue.intervals, (std::vector<double>{0.2}));
    EXPECT_FALSE(h.view.enabled);
    EXPECT_FALSE(h.eventTap.created);
    EXPECT_TRUE(h.c().state().ready);
    EXPECT_EQ(h.view.status, "sensor.connected");
}

TEST_F(ControllerLifecycleTest, LaunchingFillsTheGestureRowsAfterBuildingTheWindow) {
    h.c().profiles().setAction(action::copy, 6);
    h.c().applicationDidFinishLaunching();

    EXPECT_EQ(h.view.shownActions.at(6), action::copy);
    EXPECT_EQ(h.view.shownActions.at(0), action::defaultAction);
    ASSERT_TRUE(h.view.recordButtons.at(0).has_value());
    EXPECT_EQ(h.view.recordButtons.at(0)->title, "record.button");
}

TEST_F(ControllerLifecycleTest, TheWindowIsBuiltWithItsFixedTexts) {
    h.c().applicationDidFinishLaunching();

    ASSERT_TRUE(h.shell.window.has_value());
    EXPECT_EQ(*h.shell.window, settingsWindowTexts());
    EXPECT_EQ(h.shell.window->actionNames, choices());
}

TEST_F(ControllerLifecycleTest, SecondCopyActivatesTheFirstAndEndsBeforeBuildingAnything) {
    h.workspace.instances = {7, 31};
    h.c().applicationDidFinishLaunching();

    EXPECT_EQ(h.log.calls, (std::vector<std::string>{
                               "workspace.instanceProcessIDs", "workspace.activateApplication",
                               "workspace.requestShow", "workspace.terminate"}));
    EXPECT_EQ(h.workspace.activated, (std::vector<std::int32_t>{31}));
    EXPECT_EQ(h.workspace.showRequests, (std::vector<std::int32_t>{31}));
    EXPECT_TRUE(h.queue.intervals.empty());
}

TEST_F(ControllerLifecycleTest, OfSeveralOtherCopiesTheFirstListedIsActivated) {
    h.workspace.instances = {40, 7, 12};
    h.c().applicationDidFinishLaunching();

    EXPECT_EQ(h.workspace.activated, (std::vector<std::int32_t>{40}));
    EXPECT_TRUE(h.log.contains("workspace.terminate"));
}

TEST_F(ControllerLifecycleTest, TheOnlyCopyLaunches) {
    h.c().applicationDidFinishLaunching();

    EXPECT_TRUE(h.workspace.activated.empty());
    EXPECT_FALSE(h.log.contains("workspace.terminate"));
    EXPECT_TRUE(h.log.contains("shell.showWindow"));
}

TEST_F(ControllerLifecycleTest, WithoutABundleIdentifierTheLaunchGoesOn) {
    h.workspace.instances.clear();
    h.c().applicationDidFinishLaunching();

    EXPECT_TRUE(h.workspace.activated.empty());
    EXPECT_TRUE(h.log.contains("shell.showWindow"));
}

TEST_F(ControllerLifecycleTest, MenusOpenPauseAndQuit) {
    h.c().applicationDidFinishLaunching();

    EXPECT_EQ(h.shell.mainMenu, (std::vector<MenuEntry>{
                                    {"menu.about", MenuCommand::about, ""},
                                    {"", MenuCommand::separator, ""},
                                    {"menu.preferences", MenuCommand::show, ","},
                                    {"menu.open", MenuCommand::show, ""},
                                    {"", MenuCommand::separator, ""},
                                    {"menu.hide", MenuCommand::hide, "h"},
                                    {"menu.hide_others", MenuCommand::hideOthers, "h", false, true},
                                    {"menu.show_all", MenuCommand::showAll, ""},
                                    {"", MenuCommand::separator, ""},
                                    {"menu.quit", MenuCommand::quit, "q"}}));
    EXPECT_EQ(h.shell.statusMenu,
              (std::vector<MenuEntry>{{"menu.open", MenuCommand::show, ""},
                                      {"menu.pause", MenuCommand::pause, ""},
                                      {"menu.feedback", MenuCommand::toggleMenuBarFeedback, ""},
                                      {"menu.trace.start", MenuCommand::recordTouches, ""},
                                      {"", MenuCommand::separator, ""},
                                      {"menu.exit", MenuCommand::quit, "q"}}));
}

TEST_F(ControllerLifecycleTest, MenuBarAddsTheStandardEditAndWindowMenusAfterTheApplicationMenu) {
    h.c().applicationDidFinishLaunching();

    ASSERT_EQ(h.shell.addedMenus.size(), 2U);
    EXPECT_EQ(h.shell.addedMenus[0].first, "menu.edit");
    EXPECT_EQ(h.shell.addedMenus[0].second,
              (std::vector<MenuEntry>{{"menu.undo", MenuCommand::undo, "z"},
                                      {"menu.redo", MenuCommand::redo, "Z"},
                                      {"", MenuCommand::separator, ""},
                                      {"menu.cut", MenuCommand::cut, "x"},
                                      {"menu.copy", MenuCommand::copy, "c"},
                                      {"menu.paste", MenuCommand::paste, "v"},
                                      {"menu.select_all", MenuCommand::selectAll, "a"}}));
    EXPECT_EQ(h.shell.addedMenus[1].first, "menu.window");
    EXPECT_EQ(
        h.shell.addedMenus[1].second,
        (std::vector<MenuEntry>{{"menu.minimize", MenuCommand::minimize, "m"},
                                {"menu.close_window", MenuCommand::closeWindow, "w"},
                                {"", MenuCommand::separator, ""},
                                {"menu.bring_all_to_front", MenuCommand::bringAllToFront, ""}}));
}

TEST_F(ControllerLifecycleTest, AnotherCopysRequestShowsTheWindow) {
    h.c().applicationDidFinishLaunching();
    h.log.clear();
    ASSERT_TRUE(h.workspace.showRequested);

    h.workspace.showRequested();
    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"shell.showWindow", "workspace.activate"}));
}

TEST_F(ControllerLifecycleTest, AShowRequestAfterTheControllerIsGoneDoesNothing) {
    h.c().applicationDidFinishLaunching();
    const std::function<void()> request = h.workspace.showRequested;
    clearApplicationController();
    h.app.reset();
    h.controller.reset();
    h.log.clear();

    request();
    EXPECT_TRUE(h.log.calls.empty());
}

TEST_F(ControllerLifecycleTest, ReopeningWithTheWindowClosedShowsIt) {
    h.c().applicationDidFinishLaunching();
    h.log.clear();

    EXPECT_FALSE(h.c().applicationShouldHandleReopen(false));
    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"shell.showWindow", "workspace.activate"}));
}

TEST_F(ControllerLifecycleTest, ReopeningWithTheWindowOnScreenLeavesItToTheSystem) {
    h.c().applicationDidFinishLaunching();
    h.log.clear();

    EXPECT_TRUE(h.c().applicationShouldHandleReopen(true));
    EXPECT_TRUE(h.log.calls.empty());
}

TEST_F(ControllerLifecycleTest, ASecondCopyAddsNoMenus) {
    h.workspace.instances = {7, 31};
    h.c().applicationDidFinishLaunching();

    EXPECT_TRUE(h.shell.addedMenus.empty());
}

TEST_F(ControllerLifecycleTest, RefreshTimerRunsEveryFifthOfASecondWhileTheControllerLives) {
    h.c().applicationDidFinishLaunching();
    h.view.live.clear();
    h.queue.advance(0.21);
    EXPECT_EQ(h.view.live, "0 | — | —");

    h.view.live.clear();
    clearApplicationController();
    h.app.reset();
    h.controller.reset();
    h.queue.advance(1);
    EXPECT_TRUE(h.view.live.empty());
}

TEST_F(ControllerLifecycleTest, SwitchingOnUnticksAndSaysSoUntilBothPermissionsAreGranted) {
    h.c().applicationDidFinishLaunching();
    const std::pair<bool, bool> missing[] = {{false, false}, {true, false}, {false, true}};
    for (const auto& [accessibility, inputMonitoring] : missing) {
        h.permissions.accessibility = accessibility;
        h.permissions.inputMonitoring = inputMonitoring;
        h.view.status.clear();
        h.view.enabled = true;
        h.c().toggle();

        EXPECT_FALSE(h.view.enabled);
        EXPECT_EQ(h.view.status, "error.enable");
        EXPECT_EQ(h.eventTap.creations, 0);
    }

    h.permissions.accessibility = true;
    h.permissions.inputMonitoring = true;
    h.view.enabled = true;
    h.c().toggle();
    EXPECT_TRUE(h.view.enabled);
    EXPECT_EQ(h.eventTap.creations, 1);
    EXPECT_TRUE(h.eventTap.enabled);
}

TEST_F(ControllerLifecycleTest, SwitchingOnWithoutAccessibilityNeverTriesTheTap) {
    h.c().applicationDidFinishLaunching();
    h.permissions.accessibility = false;
    h.view.enabled = true;
    h.c().toggle();

    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "error.enable");
    EXPECT_EQ(h.eventTap.creations, 0);
}

TEST_F(ControllerLifecycleTest, SwitchingOnWithTheSensorNotReadyFails) {
    h.sensor.startSucceeds = false;
    h.c().applicationDidFinishLaunching();
    h.view.enabled = true;
    h.c().toggle();

    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "error.enable");
    EXPECT_EQ(h.eventTap.creations, 0);
}

TEST_F(ControllerLifecycleTest, FailedTapCreationUnticksTheSwitch) {
    h.c().applicationDidFinishLaunching();
    h.eventTap.createSucceeds = false;
    h.view.enabled = true;
    h.c().toggle();

    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "error.enable");
}

TEST_F(ControllerLifecycleTest, StatusMenuPauseWhenAlreadyOffStillReleasesPressesAndDisablesTap) {
    h.launchAndSwitchOn();
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.view.enabled = false;  // switched off without toggle, as the tap's own notice would leave it
    h.log.clear();
    h.c().pause();

    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"tap.disable"}));
    EXPECT_EQ(h.poster.mouseEvents().size(), 1U);
    EXPECT_TRUE(h.c().state().presses.empty());
}

TEST_F(ControllerLifecycleTest, SwitchingToAnotherApplicationCancelsThePendingTapAndReleases) {
    holdAPressAndLeaveATapPending();
    const std::int64_t before = h.c().state().actionGeneration;
    h.c().applicationDidResignActive();
    h.queue.advance(0.1);

    EXPECT_EQ(h.c().state().actionGeneration, before + 1);
    EXPECT_TRUE(h.poster.keyEvents().empty());
    EXPECT_TRUE(h.c().state().presses.empty());
    EXPECT_EQ(h.poster.mouseEvents(), (std::vector<MouseButtonEvent>{{.type = event::rightMouseUp,
                                                                      .button = MouseButton::right,
                                                                      .clickState = 1,
                                                                      .userData = marker}}));
    EXPECT_EQ(h.c().state().gesture, GestureState());
}

TEST_F(ControllerLifecycleTest, ComingBackCancelsThePendingTapAndReleasesToo) {
    holdAPressAndLeaveATapPending();
    const std::int64_t before = h.c().state().actionGeneration;
    h.c().applicationDidBecomeActive();
    h.queue.advance(0.1);

    EXPECT_EQ(h.c().state().actionGeneration, before + 1);
    EXPECT_TRUE(h.poster.keyEvents().empty());
    EXPECT_TRUE(h.c().state().presses.empty());
    EXPECT_EQ(h.poster.mouseEvents().size(), 1U);
    EXPECT_EQ(h.c().state().gesture, GestureState());
}

TEST_F(ControllerLifecycleTest, TerminatingPausesThenStopsTheSensor) {
    h.launchAndSwitchOn();
    h.c().applicationWillTerminate();

    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"tap.disable", "sensor.stop"}));
    EXPECT_FALSE(h.view.enabled);
}

TEST_F(ControllerLifecycleTest, WakingPausesThenReconnects) {
    h.launchAndSwitchOn();
    h.c().woke();

    // The status item showed the switch off already: no refresh ran while it was on.
    EXPECT_EQ(h.log.calls,
              (std::vector<std::string>{"tap.disable", "tap.disable", "sensor.start"}));
    EXPECT_FALSE(h.view.enabled);
}

TEST_F(ControllerLifecycleTest, WakeAfterTheControllerIsGoneDoesNothing) {
    h.c().applicationDidFinishLaunching();
    clearApplicationController();
    h.app.reset();
    h.controller.reset();
    h.log.clear();
    h.workspace.wake();

    EXPECT_TRUE(h.log.calls.empty());
}

TEST_F(ControllerLifecycleTest, PermissionButtonsPromptThenOpenTheirPanes) {
    h.c().access();
    h.c().monitor();

    EXPECT_EQ(h.log.calls, (std::vector<std::string>{
                               "permissions.requestAccessibility", "workspace.openURL",
                               "permissions.requestInputMonitoring", "workspace.openURL"}));
    EXPECT_EQ(h.workspace.openedURLs,
              (std::vector<std::string>{
                  "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
                  "x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent"}));
}

TEST_F(ControllerLifecycleTest, AStartAtLoginStaysInTheMenuBar) {
    h.shell.origin = LaunchOrigin::loginItem;
    h.c().applicationDidFinishLaunching();
    EXPECT_TRUE(h.log.contains("shell.setAccessoryActivationPolicy"));
    EXPECT_FALSE(h.log.contains("shell.setRegularActivationPolicy"));
    EXPECT_FALSE(h.log.contains("shell.showWindow"));
    EXPECT_FALSE(h.log.contains("workspace.activate"));
    // Everything else starts as usual.
    EXPECT_TRUE(h.log.contains("shell.buildWindow"));
    EXPECT_TRUE(h.log.contains("shell.createStatusItem"));
    EXPECT_TRUE(h.c().state().ready);
    EXPECT_EQ(h.queue.intervals, (std::vector<double>{0.2}));
}

TEST_F(ControllerLifecycleTest, OpeningTheWindowAfterAStartAtLoginBringsTheDockIcon) {
    h.shell.origin = LaunchOrigin::loginItem;
    h.c().applicationDidFinishLaunching();
    h.log.clear();
    h.c().show();
    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"shell.setRegularActivationPolicy",
                                                     "shell.showWindow", "workspace.activate"}));
    h.log.clear();
    h.c().show();
    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"shell.showWindow", "workspace.activate"}));
}

TEST_F(ControllerLifecycleTest, ASecondLaunchAfterAStartAtLoginShowsTheWindowWithTheDockIcon) {
    h.shell.origin = LaunchOrigin::loginItem;
    h.c().applicationDidFinishLaunching();
    h.log.clear();
    h.workspace.showRequested();
    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"shell.setRegularActivationPolicy",
                                                     "shell.showWindow", "workspace.activate"}));
}

TEST_F(ControllerLifecycleTest, ReopeningAfterAStartAtLoginShowsTheWindowWithTheDockIcon) {
    h.shell.origin = LaunchOrigin::loginItem;
    h.c().applicationDidFinishLaunching();
    h.log.clear();
    EXPECT_FALSE(h.c().applicationShouldHandleReopen(false));
    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"shell.setRegularActivationPolicy",
                                                     "shell.showWindow", "workspace.activate"}));
}

TEST_F(ControllerLifecycleTest, ShowBringsTheWindowForwardThenActivates) {
    h.c().show();
    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"shell.showWindow", "workspace.activate"}));
}

TEST_F(ControllerLifecycleTest, QuitAsksToTerminate) {
    h.c().quit();
    EXPECT_EQ(h.log.calls, (std::vector<std::string>{"workspace.terminate"}));
}

}  // namespace
}  // namespace tactora::testing
