#include "bridge/BridgeTouchDevices.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "bridge/FakeFramework.h"
#include "bridge/RawFrame.h"

namespace tactora::testing {
namespace {

constexpr std::uint32_t kMouse = 5;
constexpr std::uint32_t kTrackpad = 6;

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
        fake_.controls().addDescribedDevice(kMouse, "HIDMouseAcceleration", "Magic Mouse", false);
        fake_.controls().addDescribedDevice(kTrackpad, "HIDTrackpadAcceleration", "Magic Trackpad",
                                            false);
    }

    bool startWith(std::vector<TouchDeviceKind> kinds) {
        return devices_.start(&record, [kinds](const TouchDevice& device) {
            return std::ranges::find(kinds, device.kind) != kinds.end();
        });
    }

    FakeFramework fake_;
    BridgeTouchDevices devices_;
};

TEST_F(BridgeTouchDevicesTest, DescribesEveryDeviceInTheCoresTerms) {
    ASSERT_TRUE(startWith({TouchDeviceKind::magicMouse}));

    EXPECT_EQ(
        devices_.devices(),
        (std::vector<TouchDevice>{
            {kMouse, TouchDeviceKind::magicMouse, TouchDeviceState::connected, 0, "Magic Mouse"},
            {kTrackpad, TouchDeviceKind::magicTrackpad, TouchDeviceState::off, 0, "Magic Trackpad"},
        }));
    EXPECT_EQ(devices_.status(), "sensor.connected");
    EXPECT_EQ(devices_.statusError(), 0);
}

TEST_F(BridgeTouchDevicesTest, ChoiceDecidesWhichDevicesRunAndIsAskedAgainOnRefresh) {
    bool trackpadWanted = false;
    ASSERT_TRUE(devices_.start(&record, [&](const TouchDevice& device) {
        return device.kind == TouchDeviceKind::magicMouse ||
               (trackpadWanted && device.kind == TouchDeviceKind::magicTrackpad);
    }));
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));

    trackpadWanted = true;

    EXPECT_TRUE(devices_.refresh());
    EXPECT_TRUE(fake_.controls().isStarted(kTrackpad));
    EXPECT_FALSE(devices_.refresh());
}

TEST_F(BridgeTouchDevicesTest, FramesArriveWithTheirDeviceAndContactShapes) {
    ASSERT_TRUE(startWith({TouchDeviceKind::magicMouse, TouchDeviceKind::magicTrackpad}));
    RawFrame trackpad({{4, kTouching, 0.25f, 0.5f, 2.0f, 0.5f, 10.0f, 8.0f}});
    RawFrame mouse({{9, kPressing, 0.75f, 0.125f}});

    fake_.controls().deliverDeviceFrame(kTrackpad, trackpad.data(), trackpad.count());
    fake_.controls().deliverDeviceFrame(kMouse, mouse.data(), mouse.count());

    ASSERT_EQ(received().size(), 2u);
    const ContactFrame& first = received()[0];
    EXPECT_EQ(first.device, kTrackpad);
    ASSERT_EQ(first.count, 1u);
    EXPECT_EQ(first.ids[0], 4);
    EXPECT_FLOAT_EQ(first.xs[0], 0.25f);
    EXPECT_FLOAT_EQ(first.ys[0], 0.5f);
    EXPECT_FLOAT_EQ(first.sizes[0], 2.0f);
    EXPECT_FLOAT_EQ(first.angles[0], 0.5f);
    EXPECT_FLOAT_EQ(first.majorAxes[0], 10.0f);
    EXPECT_FLOAT_EQ(first.minorAxes[0], 8.0f);
    EXPECT_EQ(received()[1].device, kMouse);
    EXPECT_EQ(received()[1].ids[0], 9);
}

TEST_F(BridgeTouchDevicesTest, StopEndsEveryDeviceAndTheFrames) {
    ASSERT_TRUE(startWith({TouchDeviceKind::magicMouse, TouchDeviceKind::magicTrackpad}));

    devices_.stop();

    EXPECT_FALSE(fake_.controls().isStarted(kMouse));
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    RawFrame raw(touchingContacts(1));
    fake_.controls().deliverDeviceFrame(kMouse, raw.data(), raw.count());
    EXPECT_TRUE(received().empty());
    EXPECT_TRUE(devices_.devices().empty());
}

TEST_F(BridgeTouchDevicesTest, ADestroyedInstanceLeavesNothingRunning) {
    {
        BridgeTouchDevices other;
        ASSERT_TRUE(other.start(&record, [](const TouchDevice&) { return true; }));
        ASSERT_TRUE(fake_.controls().isStarted(kTrackpad));
    }

    EXPECT_FALSE(fake_.controls().isStarted(kMouse));
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    EXPECT_FALSE(devices_.refresh());
}

TEST_F(BridgeTouchDevicesTest, TellsTheDeviceOfASender) {
    fake_.controls().addSender(77, kTrackpad);
    ASSERT_TRUE(startWith({TouchDeviceKind::magicMouse, TouchDeviceKind::magicTrackpad}));

    EXPECT_EQ(devices_.deviceForSender(77), kTrackpad);
    EXPECT_EQ(devices_.deviceForSender(78), 0u);
}

TEST_F(BridgeTouchDevicesTest, ReportsAFrameworkThatCannotBeLoaded) {
    TASetFrameworkPath("/nonexistent/MultitouchSupport");

    EXPECT_FALSE(startWith({TouchDeviceKind::magicMouse}));
    EXPECT_EQ(devices_.status(), "sensor.unavailable");
}

TEST_F(BridgeTouchDevicesTest, WatchingIsUnavailableWithoutTheRegistry) {
    int changes = 0;

    EXPECT_FALSE(devices_.watch([&changes] { ++changes; }));
    EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace tactora::testing
