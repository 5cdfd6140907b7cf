// The trackpads' gestures through the running program: the composition hands the controller
// the part that decides the trackpads' events, and the active profile's trackpad slots decide.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/actions/MouseEventType.h"
#include "core/keepgestures/GestureKeeper.h"
#include "core/profiles/GestureSlot.h"

namespace tactora::testing {
namespace {

constexpr std::uint64_t trackpadID = 77;
constexpr std::uint64_t trackpadSender = 0x3000C;

class ControllerTrackpadTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.touchDevices.listed = {
            {.id = 5,
             .kind = TouchDeviceKind::magicMouse,
             .state = TouchDeviceState::connected,
             .name = "Magic Mouse"},
            {.id = trackpadID, .kind = TouchDeviceKind::magicTrackpad, .name = "Magic Trackpad"},
        };
        h.touchDevices.senders = {{trackpadSender, trackpadID}};
    }

    void tick() { h.app->deviceGestures().setUses(h.touchDevices.listed[1], true); }

    void mapTrackpad(std::int64_t slot, ActionIndex action) {
        h.c().profiles().setAction(action, slot, SurfaceKind::trackpad);
    }

    void trackpadFrame(int fingers) {
        std::vector<std::pair<float, float>> contacts;
        for (int i = 0; i < fingers; ++i) {
            contacts.emplace_back(0.3f + 0.1f * static_cast<float>(i), 0.5f);
        }
        h.touchDevices.send(trackpadID, contacts);
        h.queue.runReady();
    }

    void trackpadTap(int fingers) {
        trackpadFrame(fingers);
        h.queue.advance(0.1);
        trackpadFrame(0);
    }

    FakeTapEvent trackpadEvent(EventType type) { return FakeTapEvent(type, 0, trackpadSender); }

    std::vector<MouseButtonEvent> posted() const { return h.poster.mouseEvents(); }

    ControllerHarness h;
};

TEST_F(ControllerTrackpadTest, AThreeFingerTrackpadTapMappedToTheMiddleClickPostsOne) {
    tick();
    h.launchAndSwitchOn();
    mapTrackpad(slot::forTap(3), action::middle);

    trackpadTap(3);
    h.queue.advance(Controller::tapDelay + 0.01);

    const std::vector<MouseButtonEvent> events = posted();
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[0].type, event::otherMouseDown);
    EXPECT_EQ(events[0].button, MouseButton::centre);
    EXPECT_EQ(events[1].type, event::otherMouseUp);
}

TEST_F(ControllerTrackpadTest, AThreeFingerClickAndDragIsAMiddleButtonDragToTheUp) {
    tick();
    h.launchAndSwitchOn();
    mapTrackpad(slot::forClick(3), action::middle);
    trackpadFrame(3);

    FakeTapEvent down = trackpadEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.type, event::otherMouseDown);
    FakeTapEvent drag = trackpadEvent(event::leftMouseDragged);
    EXPECT_EQ(h.send(drag), EventDisposition::pass);
    EXPECT_EQ(drag.type, event::otherMouseDragged);
    EXPECT_EQ(drag.button(), static_cast<std::int64_t>(MouseButton::centre));
    FakeTapEvent up = trackpadEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(up), EventDisposition::pass);
    EXPECT_EQ(up.type, event::otherMouseUp);

    EXPECT_TRUE(posted().empty());
}

TEST_F(ControllerTrackpadTest, TheMouseMappingNeverActsOnATrackpadAndTheOtherWayRound) {
    tick();
    h.launchAndSwitchOn();
    h.assign(slot::forTap(3), action::missionControl);
    h.assign(slot::forClick(3), action::right);

    trackpadTap(3);
    h.queue.advance(1.0);
    trackpadFrame(3);
    FakeTapEvent down = trackpadEvent(event::leftMouseDown);
    h.send(down);

    EXPECT_EQ(down.changes, 0);
    EXPECT_EQ(h.performedCount(), 0u);
}

TEST_F(ControllerTrackpadTest, AClickOfTheMouseCountsOnlyTheFingersOnTheMouse) {
    tick();
    h.launchAndSwitchOn();
    // Three fingers (the trackpad's alone) or four (both devices') would make a middle click.
    h.assign(slot::forClick(3), action::middle);
    h.assign(slot::forClick(4), action::middle);
    mapTrackpad(slot::forClick(1), action::right);
    trackpadFrame(3);
    h.rest(1);

    FakeTapEvent mouseDown = h.mouseEvent(event::leftMouseDown);
    h.send(mouseDown);

    EXPECT_EQ(mouseDown.type, event::leftMouseDown);
    EXPECT_EQ(mouseDown.changes, 0);
}

TEST_F(ControllerTrackpadTest, AnUntickedTrackpadChangesNothing) {
    h.launchAndSwitchOn();
    mapTrackpad(slot::forTap(3), action::middle);
    mapTrackpad(slot::forClick(3), action::middle);

    trackpadTap(3);
    h.queue.advance(1.0);
    trackpadFrame(3);
    FakeTapEvent down = trackpadEvent(event::leftMouseDown);

    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.changes, 0);
    EXPECT_TRUE(posted().empty());
    EXPECT_EQ(h.touchDevices.listed[1].state, TouchDeviceState::off);
}

TEST_F(ControllerTrackpadTest, PausingLetsGoOfTheTrackpadsHeldPressExactlyOnce) {
    tick();
    h.launchAndSwitchOn();
    mapTrackpad(slot::forClick(3), action::middle);
    trackpadFrame(3);
    FakeTapEvent down = trackpadEvent(event::leftMouseDown);
    h.send(down);

    h.c().pause();
    h.c().pause();

    const std::vector<MouseButtonEvent> events = posted();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].type, event::otherMouseUp);
    EXPECT_EQ(events[0].button, MouseButton::centre);
    // The physical up that follows passes as it is: gestures are off.
    FakeTapEvent up = trackpadEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(up), EventDisposition::pass);
    EXPECT_EQ(up.changes, 0);
}

TEST_F(ControllerTrackpadTest, ATrackpadLeavingDuringAHeldPressGetsExactlyOneUp) {
    tick();
    h.launchAndSwitchOn();
    mapTrackpad(slot::forClick(3), action::middle);
    trackpadFrame(3);
    FakeTapEvent down = trackpadEvent(event::leftMouseDown);
    h.send(down);

    h.touchDevices.leave(trackpadID);
    h.touchDevices.leave(trackpadID);

    const std::vector<MouseButtonEvent> events = posted();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].type, event::otherMouseUp);
    EXPECT_TRUE(h.c().state().ready);
    EXPECT_TRUE(h.view.enabled);
}

TEST_F(ControllerTrackpadTest, ATrackpadsPressSwallowedForAShortcutRunsItOnRelease) {
    tick();
    h.launchAndSwitchOn();
    mapTrackpad(slot::forClick(4), action::copy);
    trackpadFrame(4);

    FakeTapEvent down = trackpadEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::swallow);
    FakeTapEvent up = trackpadEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(up), EventDisposition::swallow);
    h.queue.runReady();

    EXPECT_EQ(h.poster.keyEvents().size(), 2u);
}

// The Magic Mouse leaves and comes back while the trackpad stays in use: the sensor follows it
// on the next refresh, as the bridge does.
class ControllerTrackpadMouseTest : public ControllerTrackpadTest {
  protected:
    void SetUp() override {
        ControllerTrackpadTest::SetUp();
        h.touchDevices.onRefresh = [this] {
            h.sensor.connected = mousePresent ? mouseDevice : 0;
            h.sensor.statusKey = mousePresent ? "sensor.connected" : "sensor.missing";
        };
    }

    void mouseLeaves() {
        mousePresent = false;
        h.devices.leave(h.sensor.connected);
        h.queue.advance(GestureKeeper::deviceSettle + 0.01);
    }

    void mouseReturns(std::uint64_t device) {
        mousePresent = true;
        mouseDevice = device;
        h.devices.arrive(device);
        h.queue.advance(GestureKeeper::deviceSettle + 0.01);
    }

    bool mousePresent = true;
    std::uint64_t mouseDevice = 42;
};

TEST_F(ControllerTrackpadMouseTest, TheMouseLeavingBesideATrackpadInUsePausesNothing) {
    tick();
    h.launchAndSwitchOn();
    mapTrackpad(slot::forTap(3), action::middle);
    h.assign(slot::forClick(3), action::middle);
    h.rest(3);
    FakeTapEvent mouseDown = h.mouseEvent(event::leftMouseDown);
    h.send(mouseDown);
    const auto starts = h.log.count("sensor.start");

    mouseLeaves();

    EXPECT_TRUE(h.view.enabled);
    EXPECT_EQ(h.log.count("sensor.start"), starts);
    EXPECT_EQ(h.view.status, "sensor.missing");
    // The mouse's held press gets its one up; the trackpad goes on.
    ASSERT_EQ(posted().size(), 1u);
    EXPECT_EQ(posted()[0].type, event::otherMouseUp);
    trackpadTap(3);
    h.queue.advance(Controller::tapDelay + 0.01);
    EXPECT_EQ(posted().size(), 3u);
}

TEST_F(ControllerTrackpadMouseTest, TheMouseComingBackBesideATrackpadInUseIsFollowedWithoutAPause) {
    tick();
    h.launchAndSwitchOn();
    mouseLeaves();
    const auto starts = h.log.count("sensor.start");

    mouseReturns(43);

    EXPECT_TRUE(h.view.enabled);
    EXPECT_EQ(h.log.count("sensor.start"), starts);
    EXPECT_EQ(h.view.status, "sensor.connected");
    EXPECT_EQ(h.sensor.connectedDevice(), 43u);
}

TEST_F(ControllerTrackpadMouseTest, ANoticeThatComesAfterTheSensorFollowedTheMouseIsStillShown) {
    tick();
    h.launchAndSwitchOn();
    h.assign(slot::forClick(2), action::right);
    h.rest(2);
    FakeTapEvent mouseDown = h.mouseEvent(event::leftMouseDown);
    h.send(mouseDown);
    // The devices' own notice came first and the sensor already let go of the mouse.
    mousePresent = false;
    h.touchDevices.changed();
    ASSERT_EQ(h.sensor.connectedDevice(), 0u);

    h.devices.leave(42);
    h.queue.advance(GestureKeeper::deviceSettle + 0.01);

    EXPECT_EQ(h.view.status, "sensor.missing");
    ASSERT_EQ(posted().size(), 1u);
    EXPECT_EQ(posted()[0].type, event::rightMouseUp);
    EXPECT_TRUE(h.view.enabled);
}

TEST_F(ControllerTrackpadMouseTest, AMouseAloneStillPausesAndReconnectsWhenTheSensorLetItGoFirst) {
    h.launchAndSwitchOn();
    const auto starts = h.log.count("sensor.start");
    // The devices' own notice came first and the sensor already let go of the mouse.
    mousePresent = false;
    h.touchDevices.changed();

    h.devices.leave(42);
    h.queue.advance(GestureKeeper::deviceSettle + 0.01);

    EXPECT_EQ(h.log.count("sensor.start"), starts + 1);
    EXPECT_FALSE(h.view.enabled);
}

TEST_F(ControllerTrackpadMouseTest, WithoutATrackpadInUseTheMouseLeavingStillReconnects) {
    h.launchAndSwitchOn();
    const auto starts = h.log.count("sensor.start");

    mouseLeaves();

    EXPECT_EQ(h.log.count("sensor.start"), starts + 1);
    EXPECT_EQ(h.touchDevices.refreshes, 1);  // the launch's only
}

}  // namespace
}  // namespace tactora::testing
