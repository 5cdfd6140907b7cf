#include "bridge/BridgeSensor.h"

#include <gtest/gtest.h>

#include "bridge/FakeFramework.h"
#include "bridge/FrameRecorder.h"
#include "bridge/RawFrame.h"

namespace tactora::testing {
namespace {

constexpr std::uint32_t kMouse = 5;

class BridgeSensorTest : public ::testing::Test {
  protected:
    void SetUp() override { FrameRecorder::clear(); }

    FakeFramework fake_;
    BridgeSensor sensor_;
};

TEST_F(BridgeSensorTest, StartConnectsTheMouseAndDeliversItsFrames) {
    fake_.controls().addDevice(kMouse, true);

    ASSERT_TRUE(sensor_.start(FrameRecorder::record));
    RawFrame raw({{9, kTouching, 0.5f, 0.25f}});
    fake_.controls().deliverFrame(raw.data(), raw.count());

    EXPECT_EQ(sensor_.status(), "sensor.connected");
    EXPECT_EQ(sensor_.statusError(), 0);
    // Off Apple systems a service stands for its own registry entry id.
    EXPECT_EQ(sensor_.connectedDevice(), kMouse);
    ASSERT_EQ(FrameRecorder::received().size(), 1u);
    EXPECT_EQ(FrameRecorder::received()[0], (std::vector<DeliveredContact>{{9, 0.5f, 0.25f}}));
}

TEST_F(BridgeSensorTest, ReportsAFailedStartWithItsCode) {
    fake_.controls().addDevice(kMouse, true);
    fake_.controls().setStartResult(12);

    EXPECT_FALSE(sensor_.start(FrameRecorder::record));
    EXPECT_EQ(sensor_.status(), "sensor.blocked");
    EXPECT_EQ(sensor_.statusError(), 12);
    EXPECT_EQ(sensor_.connectedDevice(), 0u);
}

TEST_F(BridgeSensorTest, ReportsAMissingMouse) {
    EXPECT_FALSE(sensor_.start(FrameRecorder::record));
    EXPECT_EQ(sensor_.status(), "sensor.missing");
}

TEST_F(BridgeSensorTest, StopEndsTheConnection) {
    fake_.controls().addDevice(kMouse, true);
    ASSERT_TRUE(sensor_.start(FrameRecorder::record));

    sensor_.stop();

    EXPECT_FALSE(fake_.log().handlerRegistered);
    EXPECT_EQ(fake_.log().stops, 1);
    EXPECT_EQ(sensor_.connectedDevice(), 0u);
}

TEST_F(BridgeSensorTest, NoSenderIsTheMouseOffApple) {
    EXPECT_FALSE(sensor_.isMouseSender(0));
    EXPECT_FALSE(sensor_.isMouseSender(kMouse));
}

}  // namespace
}  // namespace tactora::testing
