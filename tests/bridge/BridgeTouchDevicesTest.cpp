#include "bridge/BridgeTouchDevices.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "bridge/BridgeSensor.h"
#include "bridge/FakeFramework.h"
#include "bridge/FakeRegistry.h"
#include "bridge/FrameRecorder.h"
#include "bridge/RawFrame.h"

namespace tactora::testing {
namespace {

constexpr std::uint32_t kMouse = 5;
constexpr std::uint32_t kTrackpad = 6;
constexpr std::uint32_t kLaptop = 7;
constexpr std::uint32_t kReturnedTrackpad = 8;
constexpr std::uint32_t kReturnedMouse = 9;

std::vector<ContactFrame>& received() {
    static std::vector<ContactFrame> frames;
    return frames;
}

void record(const ContactFrame& frame) {
    received().push_back(frame);
}

class BridgeTouchDevicesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        received().clear();
        FrameRecorder::clear();
        fake_.controls().addDescribedDevice(kMouse, "HIDMouseAcceleration", "Magic Mouse", false);
        fake_.controls().addDescribedDevice(kTrackpad, "HIDTrackpadAcceleration", "Magic Trackpad",
                                            false);
        fake_.controls().addDescribedDevice(kLaptop, "HIDTrackpadAcceleration",
                                            "Apple Internal Keyboard / Trackpad", true);
    }

    void useOthers(std::vector<TouchDeviceKind> kinds) {
        devices_.useOthers(&record, [kinds](const TouchDevice& device) {
            return std::ranges::find(kinds, device.kind) != kinds.end();
        });
    }

    bool startSensor() { return sensor_.start(FrameRecorder::record); }

    void deliver(std::uint32_t service, const RawFrame& raw) {
        ASSERT_TRUE(fake_.controls().deliverDeviceFrame(service, raw.data(), raw.count()));
    }

    TouchDevice device(std::uint64_t id) const {
        for (const TouchDevice& each : devices_.devices()) {
            if (each.id == id) {
                return each;
            }
        }
        ADD_FAILURE() << "no device " << id;
        return {};
    }

    FakeFramework fake_;
    FakeRegistry registry_{fake_};
    BridgeSensor sensor_;
    BridgeTouchDevices devices_;
};

TEST_F(BridgeTouchDevicesTest, DescribesEveryDeviceInTheCoresTermsTheMouseIncluded) {
    useOthers({TouchDeviceKind::builtInTrackpad});

    ASSERT_TRUE(startSensor());

    EXPECT_EQ(
        devices_.devices(),
        (std::vector<TouchDevice>{
            {kMouse, TouchDeviceKind::magicMouse, TouchDeviceState::connected, 0, "Magic Mouse"},
            {kTrackpad, TouchDeviceKind::magicTrackpad, TouchDeviceState::off, 0, "Magic Trackpad"},
            {kLaptop, TouchDeviceKind::builtInTrackpad, TouchDeviceState::connected, 0,
             "Apple Internal Keyboard / Trackpad"},
        }));
    EXPECT_EQ(sensor_.status(), "sensor.connected");
}

TEST_F(BridgeTouchDevicesTest, UntilAChoiceIsGivenOnlyTheMouseStarts) {
    ASSERT_TRUE(startSensor());

    EXPECT_FALSE(devices_.refresh());

    EXPECT_EQ(fake_.log().starts, 1);
    EXPECT_EQ(device(kTrackpad).state, TouchDeviceState::off);
    EXPECT_EQ(device(kLaptop).state, TouchDeviceState::off);
}

TEST_F(BridgeTouchDevicesTest, TheChoiceIsAskedAgainOnRefresh) {
    bool trackpadWanted = false;
    devices_.useOthers(&record, [&](const TouchDevice& device) {
        return trackpadWanted && device.kind == TouchDeviceKind::magicTrackpad;
    });
    ASSERT_TRUE(startSensor());
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));

    trackpadWanted = true;

    EXPECT_TRUE(devices_.refresh());
    EXPECT_TRUE(fake_.controls().isStarted(kTrackpad));
    EXPECT_FALSE(devices_.refresh());
}

TEST_F(BridgeTouchDevicesTest, InterleavedFramesArriveWithTheirDeviceAndContactShapes) {
    useOthers({TouchDeviceKind::magicTrackpad, TouchDeviceKind::builtInTrackpad});
    ASSERT_TRUE(startSensor());

    deliver(kTrackpad, RawFrame({{4, kTouching, 0.25f, 0.5f, 2.0f, 0.5f, 10.0f, 8.0f}}));
    deliver(kMouse, RawFrame({{9, kPressing, 0.75f, 0.125f}}));
    deliver(kLaptop, RawFrame({{2, kTouching, 0.5f, 0.5f}, {3, kTouching, 0.25f, 0.25f}}));
    deliver(kTrackpad, RawFrame({}));

    ASSERT_EQ(received().size(), 3u);
    const ContactFrame& first = received()[0];
    EXPECT_EQ(first.device, kTrackpad);
    ASSERT_EQ(first.count, 1u);
    EXPECT_EQ(first.ids[0], 4);
    EXPECT_FLOAT_EQ(first.xs[0], 0.25f);
    EXPECT_FLOAT_EQ(first.ys[0], 0.5f);
    EXPECT_TRUE(first.hasShapes);
    EXPECT_EQ(first.shapes[0], (ContactShape{2.0f, 0.5f, 10.0f, 8.0f}));
    EXPECT_EQ(received()[1].device, kLaptop);
    EXPECT_EQ(received()[1].count, 2u);
    EXPECT_EQ(received()[1].ids[1], 3);
    EXPECT_EQ(received()[2].device, kTrackpad);
    EXPECT_EQ(received()[2].count, 0u);
    EXPECT_FALSE(received()[2].hasShapes);
    // The mouse's frame went to the sensor's callback alone.
    ASSERT_EQ(FrameRecorder::received().size(), 1u);
    EXPECT_EQ(FrameRecorder::received()[0], (std::vector<DeliveredContact>{{9, 0.75f, 0.125f}}));
}

TEST_F(BridgeTouchDevicesTest, ALeavingDeviceIsListedMissingAndReturnsToTheSameEntry) {
    useOthers({TouchDeviceKind::magicTrackpad});
    ASSERT_TRUE(startSensor());

    fake_.controls().removeDevice(kTrackpad);
    ASSERT_TRUE(devices_.refresh());
    EXPECT_EQ(devices_.devices()[1].state, TouchDeviceState::missing);
    EXPECT_EQ(devices_.devices()[1].name, "Magic Trackpad");

    fake_.controls().addDescribedDevice(kReturnedTrackpad, "HIDTrackpadAcceleration",
                                        "Magic Trackpad", false);
    ASSERT_TRUE(devices_.refresh());

    const std::vector<TouchDevice> listed = devices_.devices();
    ASSERT_EQ(listed.size(), 3u);
    EXPECT_EQ(listed[1].id, kReturnedTrackpad);
    EXPECT_EQ(listed[1].state, TouchDeviceState::connected);
    deliver(kReturnedTrackpad, RawFrame(touchingContacts(1)));
    ASSERT_EQ(received().size(), 1u);
    EXPECT_EQ(received()[0].device, kReturnedTrackpad);
}

TEST_F(BridgeTouchDevicesTest, RefreshTouchesNothingThatRunsTheMouseLeast) {
    useOthers({TouchDeviceKind::magicTrackpad});
    ASSERT_TRUE(startSensor());
    const FakeMultitouchLog before = fake_.log();

    EXPECT_FALSE(devices_.refresh());
    fake_.controls().removeDevice(kLaptop);
    EXPECT_TRUE(devices_.refresh());

    EXPECT_EQ(fake_.log().starts, before.starts);
    EXPECT_EQ(fake_.log().stops, before.stops);
    EXPECT_EQ(fake_.log().registrations, before.registrations);
    EXPECT_EQ(fake_.log().unregistrations, before.unregistrations);
    EXPECT_EQ(sensor_.status(), "sensor.connected");
    EXPECT_EQ(sensor_.connectedDevice(), kMouse);
    deliver(kMouse, RawFrame(touchingContacts(2)));
    EXPECT_EQ(FrameRecorder::received().size(), 1u);
}

TEST_F(BridgeTouchDevicesTest, TheSensorStartsWithAChosenTrackpadAlone) {
    fake_.controls().removeDevice(kMouse);
    useOthers({TouchDeviceKind::magicTrackpad});

    EXPECT_TRUE(startSensor());

    EXPECT_EQ(sensor_.status(), "sensor.missing");
    EXPECT_EQ(sensor_.statusError(), 0);
    EXPECT_EQ(sensor_.connectedDevice(), 0u);
    EXPECT_EQ(device(kTrackpad).state, TouchDeviceState::connected);
}

TEST_F(BridgeTouchDevicesTest, TheSensorFollowsTheMouseThroughARefresh) {
    useOthers({TouchDeviceKind::magicTrackpad});
    ASSERT_TRUE(startSensor());

    fake_.controls().removeDevice(kMouse);
    ASSERT_TRUE(devices_.refresh());
    EXPECT_EQ(sensor_.status(), "sensor.missing");
    EXPECT_EQ(sensor_.statusError(), 0);
    EXPECT_EQ(sensor_.connectedDevice(), 0u);
    EXPECT_EQ(device(kMouse).state, TouchDeviceState::missing);
    deliver(kTrackpad, RawFrame(touchingContacts(1)));

    fake_.controls().addDescribedDevice(kReturnedMouse, "HIDMouseAcceleration", "Magic Mouse",
                                        false);
    ASSERT_TRUE(devices_.refresh());
    EXPECT_EQ(sensor_.status(), "sensor.connected");
    EXPECT_EQ(sensor_.connectedDevice(), kReturnedMouse);
    EXPECT_EQ(device(kReturnedMouse).state, TouchDeviceState::connected);
    deliver(kTrackpad, RawFrame(touchingContacts(2)));
    deliver(kReturnedMouse, RawFrame({{6, kTouching, 0.5f, 0.5f}}));

    ASSERT_EQ(received().size(), 2u);
    EXPECT_EQ(received()[1].device, kTrackpad);
    EXPECT_EQ(received()[1].count, 2u);
    ASSERT_EQ(FrameRecorder::received().size(), 1u);
    EXPECT_EQ(FrameRecorder::received()[0], (std::vector<DeliveredContact>{{6, 0.5f, 0.5f}}));
}

TEST_F(BridgeTouchDevicesTest, TheSensorReportsAReturningMouseThatCannotStart) {
    useOthers({TouchDeviceKind::magicTrackpad});
    ASSERT_TRUE(startSensor());
    fake_.controls().removeDevice(kMouse);
    ASSERT_TRUE(devices_.refresh());

    fake_.controls().addDescribedDevice(kReturnedMouse, "HIDMouseAcceleration", "Magic Mouse",
                                        false);
    fake_.controls().setDeviceStartResult(kReturnedMouse, 31);
    ASSERT_TRUE(devices_.refresh());

    EXPECT_EQ(sensor_.status(), "sensor.blocked");
    EXPECT_EQ(sensor_.statusError(), 31);
    EXPECT_EQ(sensor_.connectedDevice(), 0u);
    EXPECT_EQ(device(kReturnedMouse).state, TouchDeviceState::blocked);
    EXPECT_TRUE(fake_.controls().isStarted(kTrackpad));
}

TEST_F(BridgeTouchDevicesTest, TellsTheDeviceOfASender) {
    fake_.controls().addSender(77, kTrackpad);
    fake_.controls().addSender(78, kMouse);
    useOthers({TouchDeviceKind::magicTrackpad});
    ASSERT_TRUE(startSensor());

    EXPECT_EQ(devices_.deviceForSender(77), kTrackpad);
    EXPECT_EQ(devices_.deviceForSender(78), 0u);
    EXPECT_EQ(devices_.deviceForSender(79), 0u);
}

TEST_F(BridgeTouchDevicesTest, SensorStopEndsEveryDeviceAndTheFrames) {
    useOthers({TouchDeviceKind::magicTrackpad});
    ASSERT_TRUE(startSensor());

    sensor_.stop();

    EXPECT_FALSE(fake_.controls().isStarted(kMouse));
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    deliver(kTrackpad, RawFrame(touchingContacts(1)));
    EXPECT_TRUE(received().empty());
}

TEST_F(BridgeTouchDevicesTest, ADestroyedInstanceLeavesOnlyTheMouseRunning) {
    {
        BridgeTouchDevices other;
        other.useOthers(&record, [](const TouchDevice&) { return true; });
        ASSERT_TRUE(startSensor());
        ASSERT_TRUE(fake_.controls().isStarted(kTrackpad));
    }

    EXPECT_TRUE(fake_.controls().isStarted(kMouse));
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    EXPECT_FALSE(fake_.controls().isStarted(kLaptop));
    EXPECT_FALSE(devices_.refresh());
}

TEST_F(BridgeTouchDevicesTest, WatchingIsUnavailableWithoutTheRegistry) {
    int changes = 0;

    EXPECT_FALSE(devices_.watch([&changes] { ++changes; }));
    EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace tactora::testing
