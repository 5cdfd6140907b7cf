#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/keepon/KeepOn.h"
#include "core/profiles/PreferenceValue.h"

namespace tactora::testing {
namespace {

// Keep gestures on, through sleeps, reconnects, restarts and a stopped event tap.
class ControllerKeepOnTest : public ::testing::Test {
  protected:
    // Launches, ticks "Keep gestures on", then ticks the master switch.
    static void launchKeepingOn(ControllerHarness& harness) {
        harness.c().applicationDidFinishLaunching();
        harness.view.keepOn = true;
        harness.a().keeper().toggleKeepOn();
        harness.view.enabled = true;
        harness.c().toggle();
        ASSERT_TRUE(harness.view.enabled);
        harness.log.clear();
    }

    // Whether the next start of the sensor finds the mouse, and the status it then reports.
    void mouseFound(bool found) {
        h.sensor.startSucceeds = found;
        h.sensor.statusKey = found ? "sensor.connected" : "sensor.missing";
    }

    void disableTap() {
        FakeTapEvent notice(event::tapDisabledByTimeout, 0, 0);
        h.send(notice);
        // What the tap's callback tells is heard once it has returned.
        h.queue.runReady();
    }

    ControllerHarness h;
};

TEST_F(ControllerKeepOnTest, IsOffByDefaultAndWritesNothingOfItsOwn) {
    h.launchAndSwitchOn();
    EXPECT_FALSE(h.a().keeper().keepOn().enabled());
    EXPECT_FALSE(h.defaults->values().contains(KeepOn::enabledKey));
    EXPECT_FALSE(h.defaults->values().contains(KeepOn::wantedKey));
}

TEST_F(ControllerKeepOnTest, WakeWithKeepOnOffEndsPaused) {
    h.launchAndSwitchOn();
    h.workspace.wake();
    h.queue.advance(30);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_FALSE(h.eventTap.enabled);
}

TEST_F(ControllerKeepOnTest, WakeWithKeepOnOnPausesThenComesBackOn) {
    launchKeepingOn(h);
    h.workspace.wake();
    // The usual order first: the tap is disabled by the pause, then the sensor restarts,
    // and only then is the tap enabled again.
    const auto& calls = h.log.calls;
    const auto start = std::ranges::find(calls, "sensor.start");
    ASSERT_NE(start, calls.end());
    EXPECT_EQ(calls.front(), "tap.disable");
    EXPECT_EQ(std::count(calls.begin(), start, "tap.enable"), 0);
    EXPECT_EQ(std::count(start, calls.end(), "tap.enable"), 1);
    EXPECT_TRUE(h.view.enabled);
    EXPECT_TRUE(h.eventTap.enabled);
    EXPECT_EQ(h.view.status, "sensor.connected");
}

TEST_F(ControllerKeepOnTest, TheUsersChoiceIsKeptAcrossRestarts) {
    launchKeepingOn(h);
    h.c().applicationWillTerminate();
    EXPECT_EQ(h.defaults->integer(KeepOn::wantedKey), 1);

    ControllerHarness next(h.defaults);
    next.c().applicationDidFinishLaunching();
    EXPECT_TRUE(next.view.keepOn);
    EXPECT_TRUE(next.view.enabled);
    EXPECT_TRUE(next.eventTap.enabled);
}

TEST_F(ControllerKeepOnTest, PauseFromTheMenuIsKeptAcrossRestarts) {
    launchKeepingOn(h);
    h.c().pause();
    EXPECT_EQ(h.defaults->integer(KeepOn::wantedKey), 0);
    h.workspace.wake();
    EXPECT_FALSE(h.view.enabled);

    ControllerHarness next(h.defaults);
    next.c().applicationDidFinishLaunching();
    EXPECT_TRUE(next.a().keeper().keepOn().enabled());
    EXPECT_FALSE(next.view.enabled);
}

TEST_F(ControllerKeepOnTest, UntickingTheSwitchIsTheUsersChoice) {
    launchKeepingOn(h);
    h.view.enabled = false;
    h.c().toggle();
    h.c().reconnect();
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.defaults->integer(KeepOn::wantedKey), 0);
}

TEST_F(ControllerKeepOnTest, PermissionRevokedAndGrantedAgainWhileOn) {
    launchKeepingOn(h);
    h.permissions.accessibility = false;
    h.queue.advance(0.2);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_FALSE(h.eventTap.enabled);
    EXPECT_EQ(h.view.status, "sensor.connected · keep.wait.accessibility");

    // Said once: later refreshes leave the line alone and attempt nothing.
    h.view.status = "left alone";
    h.log.clear();
    h.queue.advance(2);
    EXPECT_EQ(h.view.status, "left alone");
    EXPECT_FALSE(h.log.contains("tap.enable"));

    h.permissions.accessibility = true;
    h.queue.advance(0.2);
    EXPECT_TRUE(h.view.enabled);
    EXPECT_TRUE(h.eventTap.enabled);
    EXPECT_EQ(h.view.status, "sensor.connected");
}

TEST_F(ControllerKeepOnTest, WaitingForAPermissionNeverShowsTheEnableError) {
    h.permissions.inputMonitoring = false;
    h.c().applicationDidFinishLaunching();
    h.view.keepOn = true;
    h.a().keeper().toggleKeepOn();
    h.view.enabled = true;
    h.c().toggle();
    EXPECT_EQ(h.view.status, "error.enable · keep.wait.monitoring");
    h.view.status.clear();
    h.queue.advance(5);
    EXPECT_EQ(h.view.status, "");
    EXPECT_EQ(h.eventTap.creations, 0);

    h.permissions.inputMonitoring = true;
    h.queue.advance(0.2);
    EXPECT_TRUE(h.view.enabled);
    EXPECT_EQ(h.eventTap.creations, 1);
}

TEST_F(ControllerKeepOnTest, MouseLeavingAndComingBackWhileOn) {
    launchKeepingOn(h);
    mouseFound(false);
    h.devices.leave();
    h.queue.advance(GestureKeeper::deviceSettle);
    EXPECT_EQ(h.log.count("sensor.start"), 1);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "sensor.missing · keep.wait.sensor");

    // Refreshes do not retry the sensor.
    h.queue.advance(5);
    EXPECT_EQ(h.log.count("sensor.start"), 1);

    mouseFound(true);
    h.devices.arrive();
    h.queue.advance(GestureKeeper::deviceSettle);
    EXPECT_EQ(h.log.count("sensor.start"), 2);
    EXPECT_TRUE(h.view.enabled);
    EXPECT_EQ(h.view.status, "sensor.connected");
}

TEST_F(ControllerKeepOnTest, MouseLeavingAndComingBackWhileKeepOnIsOff) {
    h.launchAndSwitchOn();
    h.sensor.startSucceeds = false;
    h.devices.leave();
    h.queue.advance(GestureKeeper::deviceSettle);
    EXPECT_EQ(h.log.count("sensor.start"), 1);
    EXPECT_FALSE(h.view.enabled);
    h.sensor.startSucceeds = true;
    h.devices.arrive();
    h.queue.advance(GestureKeeper::deviceSettle);
    EXPECT_EQ(h.log.count("sensor.start"), 2);
    EXPECT_FALSE(h.view.enabled);
}

TEST_F(ControllerKeepOnTest, AMouseThatArrivesIsRetriedLikeAWake) {
    launchKeepingOn(h);
    mouseFound(false);
    h.devices.leave();
    h.queue.advance(GestureKeeper::deviceSettle);
    ASSERT_EQ(h.log.count("sensor.start"), 1);
    // Over Bluetooth the touch stream is often not ready at the first notice.
    h.devices.arrive(43);
    h.queue.advance(GestureKeeper::deviceSettle);
    EXPECT_EQ(h.log.count("sensor.start"), 2);
    h.queue.advance(1);
    EXPECT_EQ(h.log.count("sensor.start"), 3);
    mouseFound(true);
    h.queue.advance(3);
    EXPECT_EQ(h.log.count("sensor.start"), 4);
    EXPECT_TRUE(h.view.enabled);
    h.queue.advance(60);
    EXPECT_EQ(h.log.count("sensor.start"), 4);
}

TEST_F(ControllerKeepOnTest, AnotherDeviceLeavingChangesNothing) {
    launchKeepingOn(h);
    h.devices.leave(7);
    h.queue.advance(5);
    EXPECT_EQ(h.log.count("sensor.start"), 0);
    EXPECT_TRUE(h.view.enabled);
    // Nor does a second mouse arriving while the first one works.
    h.devices.arrive(8);
    h.queue.advance(5);
    EXPECT_EQ(h.log.count("sensor.start"), 0);
    EXPECT_TRUE(h.view.enabled);
    // The connected one leaving does.
    h.devices.leave(h.sensor.device);
    h.queue.advance(GestureKeeper::deviceSettle);
    EXPECT_EQ(h.log.count("sensor.start"), 1);
}

TEST_F(ControllerKeepOnTest, ABurstOfDeviceNoticesReconnectsOnce) {
    h.c().applicationDidFinishLaunching();
    EXPECT_EQ(h.devices.watchCalls, 1);
    h.log.clear();
    h.devices.arrive();
    h.devices.arrive();
    h.devices.leave();
    h.queue.advance(GestureKeeper::deviceSettle);
    EXPECT_EQ(h.log.count("sensor.start"), 1);
}

TEST_F(ControllerKeepOnTest, AWakeThatMissesTheMouseRetriesOnSchedule) {
    launchKeepingOn(h);
    mouseFound(false);
    h.workspace.wake();
    EXPECT_EQ(h.log.count("sensor.start"), 1);
    h.queue.advance(1);
    EXPECT_EQ(h.log.count("sensor.start"), 2);
    h.queue.advance(3);
    EXPECT_EQ(h.log.count("sensor.start"), 3);
    EXPECT_FALSE(h.view.enabled);

    mouseFound(true);
    h.queue.advance(8);
    EXPECT_EQ(h.log.count("sensor.start"), 4);
    EXPECT_TRUE(h.view.enabled);
    h.queue.advance(60);
    EXPECT_EQ(h.log.count("sensor.start"), 4);
}

TEST_F(ControllerKeepOnTest, WakeRetriesEndAfterTheScheduleAndHappenWithKeepOnOff) {
    h.launchAndSwitchOn();
    h.sensor.startSucceeds = false;
    h.workspace.wake();
    h.queue.advance(120);
    EXPECT_EQ(h.log.count("sensor.start"), 1 + static_cast<long>(KeepOn::wakeRetries.size()));
    EXPECT_FALSE(h.view.enabled);
}

TEST_F(ControllerKeepOnTest, TapDisabledFourTimesWithinAMinute) {
    launchKeepingOn(h);

    disableTap();
    EXPECT_FALSE(h.view.enabled);
    EXPECT_TRUE(h.c().state().presses.empty());
    EXPECT_EQ(h.view.status, "error.paused · cool 1");
    h.queue.advance(0.9);
    EXPECT_FALSE(h.view.enabled);
    h.queue.advance(0.1);
    EXPECT_TRUE(h.view.enabled);
    EXPECT_TRUE(h.eventTap.enabled);

    disableTap();
    EXPECT_EQ(h.view.status, "error.paused · cool 5");
    h.queue.advance(5);
    EXPECT_TRUE(h.view.enabled);

    disableTap();
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "error.paused");
    disableTap();
    h.queue.advance(120);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "error.paused");

    // Only the user's tick starts again.
    h.view.enabled = true;
    h.c().toggle();
    EXPECT_TRUE(h.view.enabled);
    disableTap();
    EXPECT_EQ(h.view.status, "error.paused · cool 1");
}

TEST_F(ControllerKeepOnTest, ALateDisableNoticeAfterTheStopDoesNotRestart) {
    launchKeepingOn(h);
    disableTap();
    h.queue.advance(1);
    disableTap();
    h.queue.advance(5);
    disableTap();
    ASSERT_EQ(h.a().keeper().keepOn().waiting(), KeepOnWait::stopped);
    // Long after, while gestures are off, the system sends another notice.
    h.queue.advance(200);
    disableTap();
    h.queue.advance(120);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "error.paused");
    EXPECT_EQ(h.a().keeper().keepOn().waiting(), KeepOnWait::stopped);
}

TEST_F(ControllerKeepOnTest, DisableTickDisableASecondLaterKeepsGesturesOff) {
    launchKeepingOn(h);
    disableTap();
    h.view.enabled = true;
    h.c().toggle();
    ASSERT_TRUE(h.view.enabled);
    h.queue.advance(0.5);
    disableTap();
    // The first cool-down's timer fires now: stale, it does nothing.
    h.queue.advance(0.5);
    EXPECT_FALSE(h.view.enabled);
    h.queue.advance(0.5);
    EXPECT_TRUE(h.view.enabled);
}

TEST_F(ControllerKeepOnTest, DisablesAbout400SecondsApartCoolDownLonger) {
    launchKeepingOn(h);
    disableTap();
    EXPECT_EQ(h.view.status, "error.paused · cool 1");
    h.queue.advance(400);
    disableTap();
    EXPECT_EQ(h.view.status, "error.paused · cool 5");
    h.queue.advance(400);
    disableTap();
    EXPECT_EQ(h.view.status, "error.paused · cool 30");
    h.queue.advance(30);
    EXPECT_TRUE(h.view.enabled);
}

TEST_F(ControllerKeepOnTest, UntickingAndReTickingKeepOnStartsTheLadderAgain) {
    launchKeepingOn(h);
    disableTap();
    h.queue.advance(1);
    disableTap();
    ASSERT_EQ(h.view.status, "error.paused · cool 5");
    h.view.keepOn = false;
    h.a().keeper().toggleKeepOn();
    h.view.keepOn = true;
    h.view.enabled = true;
    h.a().keeper().toggleKeepOn();
    h.c().toggle();
    ASSERT_TRUE(h.view.enabled);
    disableTap();
    EXPECT_EQ(h.view.status, "error.paused · cool 1");
}

TEST_F(ControllerKeepOnTest, TickingKeepOnWhileTheSwitchIsOffKeepsGesturesOff) {
    h.c().applicationDidFinishLaunching();
    h.view.keepOn = true;
    h.a().keeper().toggleKeepOn();
    h.queue.advance(5);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_FALSE(h.eventTap.created);
}

TEST_F(ControllerKeepOnTest, ATickDuringACoolDownLeavesLaterReArmsWorking) {
    launchKeepingOn(h);
    disableTap();
    h.view.enabled = true;
    h.c().toggle();
    ASSERT_TRUE(h.view.enabled);
    h.queue.advance(2);
    // A wake later: gestures come back on by themselves.
    h.workspace.wake();
    EXPECT_TRUE(h.view.enabled);
    // And after a permission went and came back.
    h.permissions.accessibility = false;
    h.queue.advance(Controller::refreshInterval);
    EXPECT_FALSE(h.view.enabled);
    h.permissions.accessibility = true;
    h.queue.advance(Controller::refreshInterval);
    EXPECT_TRUE(h.view.enabled);
}

TEST_F(ControllerKeepOnTest, RefreshesWhileWaitingForATapThatCannotBeCreatedKeepTheLine) {
    h.c().applicationDidFinishLaunching();
    h.view.keepOn = true;
    h.a().keeper().toggleKeepOn();
    h.eventTap.createSucceeds = false;
    h.view.enabled = true;
    h.c().toggle();
    ASSERT_FALSE(h.view.enabled);
    const std::string line = h.view.status;
    EXPECT_EQ(line, "error.enable · keep.wait.tap");
    h.queue.advance(5);
    EXPECT_EQ(h.view.status, line);
    EXPECT_EQ(h.a().keeper().keepOn().waiting(), KeepOnWait::eventTap);
}

TEST_F(ControllerKeepOnTest, PausingWhileWaitingForTheMouseReplacesTheWaitingLine) {
    launchKeepingOn(h);
    mouseFound(false);
    h.devices.leave();
    h.queue.advance(GestureKeeper::deviceSettle);
    ASSERT_EQ(h.view.status, "sensor.missing · keep.wait.sensor");
    h.c().pause();
    EXPECT_EQ(h.view.status, "sensor.missing");
}

TEST_F(ControllerKeepOnTest, UntickingTheSwitchWhileWaitingForAPermissionReplacesTheLine) {
    launchKeepingOn(h);
    h.permissions.accessibility = false;
    h.queue.advance(Controller::refreshInterval);
    ASSERT_EQ(h.view.status, "sensor.connected · keep.wait.accessibility");
    h.view.enabled = false;
    h.c().toggle();
    EXPECT_EQ(h.view.status, "sensor.connected");
    // Nothing brings it back: the user wants gestures off.
    h.permissions.accessibility = true;
    h.queue.advance(1);
    EXPECT_FALSE(h.view.enabled);
}

TEST_F(ControllerKeepOnTest, TurningKeepOnOffWhileWaitingReplacesTheWaitingLine) {
    launchKeepingOn(h);
    h.permissions.inputMonitoring = false;
    h.queue.advance(Controller::refreshInterval);
    ASSERT_EQ(h.view.status, "sensor.connected · keep.wait.monitoring");
    h.view.keepOn = false;
    h.a().keeper().toggleKeepOn();
    EXPECT_EQ(h.view.status, "sensor.connected");
}

TEST_F(ControllerKeepOnTest, CoolDownGrowsForDisablesFurtherApart) {
    launchKeepingOn(h);
    disableTap();
    h.queue.advance(40);
    disableTap();
    h.queue.advance(40);
    disableTap();
    EXPECT_EQ(h.view.status, "error.paused · cool 30");
    h.queue.advance(30);
    EXPECT_TRUE(h.view.enabled);
}

TEST_F(ControllerKeepOnTest, PausingDuringACoolDownKeepsGesturesOff) {
    launchKeepingOn(h);
    disableTap();
    h.c().pause();
    h.queue.advance(60);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_FALSE(h.eventTap.enabled);
}

TEST_F(ControllerKeepOnTest, PausingDuringAWakeRetryKeepsGesturesOff) {
    launchKeepingOn(h);
    h.sensor.startSucceeds = false;
    h.workspace.wake();
    h.c().pause();
    h.sensor.startSucceeds = true;
    h.queue.advance(20);
    EXPECT_EQ(h.log.count("sensor.start"), 2);
    EXPECT_FALSE(h.view.enabled);
}

TEST_F(ControllerKeepOnTest, TapDisabledWithKeepOnOffStaysPaused) {
    h.launchAndSwitchOn();
    disableTap();
    h.queue.advance(120);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "error.paused");
}

TEST_F(ControllerKeepOnTest, UntickingKeepOnStopsAPendingCoolDown) {
    launchKeepingOn(h);
    disableTap();
    h.view.keepOn = false;
    h.a().keeper().toggleKeepOn();
    h.queue.advance(60);
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.defaults->integer(KeepOn::enabledKey), 0);
}

TEST_F(ControllerKeepOnTest, AnActivityIsHeldExactlyWhileGesturesAreOn) {
    h.c().applicationDidFinishLaunching();
    EXPECT_FALSE(h.activity.held);
    h.view.enabled = true;
    h.c().toggle();
    EXPECT_TRUE(h.activity.held);
    disableTap();
    EXPECT_FALSE(h.activity.held);
    h.view.enabled = true;
    h.c().toggle();
    h.c().pause();
    EXPECT_FALSE(h.activity.held);
    h.permissions.accessibility = false;
    h.view.enabled = true;
    h.c().toggle();
    EXPECT_FALSE(h.activity.held);
    EXPECT_EQ(h.activity.begun, 2);
    EXPECT_EQ(h.activity.misuse, 0);
}

TEST_F(ControllerKeepOnTest, SecureInputIsExplainedWhenKeysArePerformed) {
    h.launchAndSwitchOn();
    h.view.status.clear();
    h.c().perform(action::copy, std::nullopt);
    EXPECT_EQ(h.view.status, "");
    h.secureInput.on = true;
    h.c().perform(action::copy, std::nullopt);
    EXPECT_EQ(h.view.status, "secure.input");
    h.view.status.clear();
    h.c().perform(action::right, std::nullopt);
    EXPECT_EQ(h.view.status, "");
}

// --- Open at login -------------------------------------------------------------------------

TEST_F(ControllerKeepOnTest, TheLoginItemIsNeverRegisteredUnlessTicked) {
    h.c().applicationDidFinishLaunching();
    h.queue.advance(2);
    EXPECT_EQ(h.loginItem.registrations, 0);
    EXPECT_EQ(h.loginItem.unregistrations, 0);
    EXPECT_GT(h.loginItem.statusReads, 0);
    EXPECT_FALSE(h.view.loginItem);
    EXPECT_FALSE(h.view.loginItemsVisible);
}

TEST_F(ControllerKeepOnTest, EachLoginItemStatusShowsInTheWindow) {
    struct Case {
        LoginItemStatus status;
        bool checked;
        bool approvalButton;
    };
    for (const Case& c : {Case{LoginItemStatus::notRegistered, false, false},
                          Case{LoginItemStatus::enabled, true, false},
                          Case{LoginItemStatus::requiresApproval, true, true},
                          Case{LoginItemStatus::notFound, false, false}}) {
        h.loginItem.current = c.status;
        h.c().applicationDidBecomeActive();
        EXPECT_EQ(h.view.loginItem, c.checked) << static_cast<int>(c.status);
        EXPECT_EQ(h.view.loginItemsVisible, c.approvalButton) << static_cast<int>(c.status);
    }
}

TEST_F(ControllerKeepOnTest, ApprovalIsAskedForOnceAndTheButtonOpensLoginItems) {
    h.c().applicationDidFinishLaunching();
    h.loginItem.statusAfterRegister = LoginItemStatus::requiresApproval;
    h.view.loginItem = true;
    h.a().keeper().toggleLoginItem();
    EXPECT_EQ(h.loginItem.registrations, 1);
    EXPECT_EQ(h.view.status, "login.approval");
    EXPECT_TRUE(h.view.loginItemsVisible);
    h.view.status.clear();
    h.queue.advance(1);
    EXPECT_EQ(h.view.status, "");
    h.a().keeper().openLoginItems();
    EXPECT_EQ(h.loginItem.settingsOpened, 1);

    h.loginItem.current = LoginItemStatus::enabled;
    h.c().applicationDidBecomeActive();
    EXPECT_TRUE(h.view.loginItem);
    EXPECT_FALSE(h.view.loginItemsVisible);
}

TEST_F(ControllerKeepOnTest, TheLoginItemIsAskedOnlyWhenShownActivatedOrChanged) {
    h.c().applicationDidFinishLaunching();
    int reads = h.loginItem.statusReads;
    // Refreshes, five a second, never ask the system service.
    h.queue.advance(10);
    EXPECT_EQ(h.loginItem.statusReads, reads);
    h.c().show();
    EXPECT_EQ(h.loginItem.statusReads, ++reads);
    h.c().applicationDidBecomeActive();
    EXPECT_EQ(h.loginItem.statusReads, ++reads);
    h.c().applicationDidResignActive();
    EXPECT_EQ(h.loginItem.statusReads, reads);
    h.view.loginItem = true;
    h.a().keeper().toggleLoginItem();
    EXPECT_EQ(h.loginItem.statusReads, ++reads);
    h.queue.advance(10);
    EXPECT_EQ(h.loginItem.statusReads, reads);
}

TEST_F(ControllerKeepOnTest, TheApprovalLineShowsAfterTheStartUpReconnect) {
    h.defaults->setInteger(KeepOn::enabledKey, 1);
    h.defaults->setInteger(KeepOn::wantedKey, 1);
    h.loginItem.current = LoginItemStatus::requiresApproval;
    ControllerHarness next(h.defaults);
    next.loginItem.current = LoginItemStatus::requiresApproval;
    next.c().applicationDidFinishLaunching();
    EXPECT_TRUE(next.view.enabled);
    EXPECT_EQ(next.view.status, "login.approval");
    EXPECT_TRUE(next.view.loginItemsVisible);
    next.queue.advance(5);
    EXPECT_EQ(next.view.status, "login.approval");
}

TEST_F(ControllerKeepOnTest, UntickingUnregisters) {
    h.loginItem.current = LoginItemStatus::enabled;
    h.c().applicationDidFinishLaunching();
    EXPECT_TRUE(h.view.loginItem);
    h.view.loginItem = false;
    h.a().keeper().toggleLoginItem();
    EXPECT_EQ(h.loginItem.unregistrations, 1);
    EXPECT_FALSE(h.view.loginItem);
}

TEST_F(ControllerKeepOnTest, AFailedRegistrationShowsItsCodeAndTheRealStatus) {
    h.c().applicationDidFinishLaunching();
    h.loginItem.errorCode = 22;
    h.view.loginItem = true;
    h.a().keeper().toggleLoginItem();
    EXPECT_EQ(h.view.status, "login failed 22");
    EXPECT_FALSE(h.view.loginItem);
}

// --- Stale permissions ---------------------------------------------------------------------

TEST_F(ControllerKeepOnTest, PermissionsSeenGrantedAreRemembered) {
    h.c().refresh();
    EXPECT_EQ(h.defaults->integer(PermissionMemory::accessibilityKey), 1);
    EXPECT_EQ(h.defaults->integer(PermissionMemory::inputMonitoringKey), 1);
    EXPECT_EQ(h.view.permission, "AX ok IM ok");
    EXPECT_FALSE(h.view.resetVisible);
}

TEST_F(ControllerKeepOnTest, AGrantFromAnEarlierRunThatIsGoneIsCalledStale) {
    h.c().refresh();
    ControllerHarness next(h.defaults);
    next.permissions.inputMonitoring = false;
    next.c().refresh();
    EXPECT_EQ(next.view.permission, "AX ok IM pending · permission.stale");
    EXPECT_TRUE(next.view.resetVisible);

    // Never granted before: just not granted.
    ControllerHarness fresh;
    fresh.permissions.inputMonitoring = false;
    fresh.c().refresh();
    EXPECT_EQ(fresh.view.permission, "AX ok IM pending");
    EXPECT_FALSE(fresh.view.resetVisible);
}

TEST_F(ControllerKeepOnTest, ResetRunsTheToolForThisApplicationThenAsksAgain) {
    h.c().refresh();
    ControllerHarness next(h.defaults);
    next.permissions.accessibility = false;
    next.a().keeper().resetPermissions();
    next.resetTool.finishAll();
    EXPECT_EQ(next.resetTool.runs, (std::vector<std::vector<std::string>>{
                                       {"reset", "Accessibility", "app.tactora.Tactora"},
                                       {"reset", "ListenEvent", "app.tactora.Tactora"},
                                   }));
    // Only the first permission missing is asked for: one prompt, one pane of System Settings.
    EXPECT_TRUE(next.log.contains("permissions.requestAccessibility"));
    EXPECT_FALSE(next.log.contains("permissions.requestInputMonitoring"));
    EXPECT_EQ(next.workspace.openedURLs,
              std::vector<std::string>{std::string(Controller::accessibilitySettings)});
    EXPECT_EQ(next.view.status, "reset.done");
    EXPECT_EQ(next.view.permission, "AX pending IM ok");
    EXPECT_FALSE(next.view.resetVisible);
}

TEST_F(ControllerKeepOnTest, AResetWithAccessibilityStillGrantedAsksForInputMonitoringOnly) {
    h.permissions.inputMonitoring = false;
    h.a().keeper().resetPermissions();
    h.resetTool.finishAll();
    EXPECT_FALSE(h.log.contains("permissions.requestAccessibility"));
    EXPECT_TRUE(h.log.contains("permissions.requestInputMonitoring"));
    EXPECT_EQ(h.workspace.openedURLs,
              std::vector<std::string>{std::string(Controller::inputMonitoringSettings)});
}

TEST_F(ControllerKeepOnTest, AResetPausesFirstAndRunsOffTheMainThreadWithATimeLimit) {
    h.launchAndSwitchOn();
    ASSERT_TRUE(h.view.enabled);
    h.a().keeper().resetPermissions();
    // Gestures are paused before the first run starts; nothing is asked before both ended.
    EXPECT_FALSE(h.view.enabled);
    EXPECT_EQ(h.view.status, "reset.running");
    ASSERT_EQ(h.resetTool.runs.size(), 1U);
    ASSERT_EQ(h.resetTool.timeLimits.size(), 1U);
    EXPECT_GT(h.resetTool.timeLimits[0], 0.0);
    EXPECT_LE(h.resetTool.timeLimits[0], 10.0);
    EXPECT_FALSE(h.log.contains("permissions.requestAccessibility"));
    ASSERT_TRUE(h.resetTool.finish(0));
    EXPECT_EQ(h.resetTool.runs.size(), 2U);
    EXPECT_EQ(h.view.status, "reset.running");
    ASSERT_TRUE(h.resetTool.finish(0));
    EXPECT_EQ(h.view.status, "reset.done");
}

TEST_F(ControllerKeepOnTest, AResetThatTimesOutSaysSoAndAsksNothing) {
    h.a().keeper().resetPermissions();
    ASSERT_TRUE(h.resetTool.finish(ToolOutcome{.timedOut = true}));
    EXPECT_EQ(h.resetTool.runs.size(), 1U);
    EXPECT_EQ(h.view.status, "reset.timeout");
    EXPECT_FALSE(h.log.contains("permissions.requestAccessibility"));
    EXPECT_TRUE(h.workspace.openedURLs.empty());
}

TEST_F(ControllerKeepOnTest, AFailedResetShowsTheExitStatusAndAsksNothing) {
    h.a().keeper().resetPermissions();
    ASSERT_TRUE(h.resetTool.finish(5));
    EXPECT_EQ(h.resetTool.runs.size(), 1U);
    EXPECT_EQ(h.view.status, "reset failed 5");
    EXPECT_FALSE(h.log.contains("permissions.requestAccessibility"));
    EXPECT_TRUE(h.workspace.openedURLs.empty());
}

TEST_F(ControllerKeepOnTest, AResetWithoutABundleIdentifierRunsNothing) {
    h.resetTool.bundleID.reset();
    h.a().keeper().resetPermissions();
    EXPECT_TRUE(h.resetTool.runs.empty());
    EXPECT_EQ(h.view.status, "reset failed -1");
}

// --- Bad input -----------------------------------------------------------------------------

TEST_F(ControllerKeepOnTest, WrongTypedValuesReadAsOffAndTouchNoProfile) {
    auto earlier = std::make_shared<MemoryPreferences>(PreferenceValues{
        {KeepOn::enabledKey, std::string("yes")},
        {KeepOn::wantedKey, Bytes{1}},
        {PermissionMemory::accessibilityKey, std::string("2026-11-22")},
        {PermissionMemory::inputMonitoringKey, std::int64_t{7}},
    });
    ControllerHarness run(earlier);
    run.permissions.accessibility = false;
    run.permissions.inputMonitoring = false;
    run.c().reconnect();
    run.view.enabled = true;
    run.c().toggle();
    run.c().applicationWillTerminate();
    EXPECT_FALSE(run.a().keeper().keepOn().enabled());
    EXPECT_FALSE(run.view.enabled);
    EXPECT_EQ(run.view.permission, "AX pending IM pending");
    EXPECT_FALSE(earlier->values().contains("workProfiles.v1"));
    EXPECT_FALSE(earlier->values().contains("activeWorkProfile"));
}

}  // namespace
}  // namespace tactora::testing
