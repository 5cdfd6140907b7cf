#include "core/devices/DeviceRecognisers.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tactora {
namespace {

constexpr std::uint64_t mouse = 7;
constexpr std::uint64_t trackpad = 9;

std::vector<Finger> fingers(int count, double x = 0.5) {
    std::vector<Finger> frame;
    for (int i = 1; i <= count; ++i) {
        frame.emplace_back(i, x, 0.5);
    }
    return frame;
}

const std::vector<Finger> lifted;

TEST(DeviceRecognisers, AFingerOnOneDeviceNeverJoinsATapOnAnother) {
    DeviceRecognisers recognisers;

    EXPECT_EQ(recognisers.update(mouse, fingers(1), 1.0), std::nullopt);
    EXPECT_EQ(recognisers.update(trackpad, fingers(2), 1.01), std::nullopt);
    EXPECT_EQ(recognisers.update(trackpad, lifted, 1.1), 2);
    EXPECT_EQ(recognisers.update(mouse, lifted, 1.15), 1);
}

TEST(DeviceRecognisers, TapsInterleavedWithinMillisecondsAreEachTheirOwn) {
    DeviceRecognisers recognisers;
    double t = 2.0;
    for (int frame = 0; frame < 10; ++frame, t += 0.01) {
        EXPECT_EQ(recognisers.update(mouse, fingers(3), t), std::nullopt);
        EXPECT_EQ(recognisers.update(trackpad, fingers(3, 0.2), t + 0.002), std::nullopt);
    }

    EXPECT_EQ(recognisers.update(mouse, lifted, t), 3);
    EXPECT_EQ(recognisers.update(trackpad, lifted, t + 0.002), 3);
}

TEST(DeviceRecognisers, TheSameFingerIdsOnTwoDevicesAreDifferentFingers) {
    DeviceRecognisers recognisers;
    recognisers.update(mouse, fingers(1, 0.1), 1.0);

    // Finger 1 on the trackpad, far from finger 1 on the mouse: not a movement.
    recognisers.update(trackpad, fingers(1, 0.9), 1.02);

    EXPECT_EQ(recognisers.update(mouse, lifted, 1.1), 1);
    EXPECT_EQ(recognisers.update(trackpad, lifted, 1.12), 1);
}

TEST(DeviceRecognisers, EachDeviceCountsItsOwnRestingFingers) {
    DeviceRecognisers recognisers;
    recognisers.update(mouse, fingers(2), 1.0);
    recognisers.update(trackpad, fingers(3), 1.05);

    ASSERT_NE(recognisers.find(mouse), nullptr);
    ASSERT_NE(recognisers.find(trackpad), nullptr);
    EXPECT_EQ(recognisers.find(mouse)->gesture.count, 2);
    EXPECT_EQ(recognisers.find(trackpad)->gesture.count, 3);
    EXPECT_DOUBLE_EQ(recognisers.find(mouse)->lastFrame, 1.0);
    EXPECT_DOUBLE_EQ(recognisers.find(trackpad)->lastFrame, 1.05);
}

TEST(DeviceRecognisers, AClickSpoilsOnlyTheTapOfItsDevice) {
    DeviceRecognisers recognisers;
    recognisers.update(mouse, fingers(1), 1.0);
    recognisers.update(trackpad, fingers(3), 1.0);

    recognisers.physicalClick(trackpad, 1.05);

    EXPECT_DOUBLE_EQ(recognisers.find(trackpad)->lastClick, 1.05);
    EXPECT_DOUBLE_EQ(recognisers.find(mouse)->lastClick, 0.0);
    EXPECT_EQ(recognisers.update(trackpad, lifted, 1.1), std::nullopt);
    EXPECT_EQ(recognisers.update(mouse, lifted, 1.1), 1);
}

TEST(DeviceRecognisers, AScrollSpoilsOnlyTheTapOfItsDevice) {
    DeviceRecognisers recognisers;
    recognisers.update(mouse, fingers(2), 1.0);
    recognisers.update(trackpad, fingers(2), 1.0);

    recognisers.scrolled(mouse);

    EXPECT_EQ(recognisers.update(mouse, lifted, 1.1), std::nullopt);
    EXPECT_EQ(recognisers.update(trackpad, lifted, 1.1), 2);
}

TEST(DeviceRecognisers, ResetAllForgetsEveryHalfSeenTouch) {
    DeviceRecognisers recognisers;
    recognisers.update(mouse, fingers(1), 1.0);
    recognisers.update(trackpad, fingers(3), 1.0);
    recognisers.physicalClick(trackpad, 1.02);

    recognisers.resetAll();

    EXPECT_EQ(recognisers.find(trackpad)->lastClick, 0.0);
    EXPECT_EQ(recognisers.find(mouse)->gesture, GestureState());
    EXPECT_EQ(recognisers.find(trackpad)->gesture, GestureState());
    EXPECT_EQ(recognisers.find(mouse)->lastFrame, 0.0);
    EXPECT_EQ(recognisers.update(mouse, lifted, 1.1), std::nullopt);
    EXPECT_EQ(recognisers.update(trackpad, lifted, 1.1), std::nullopt);
}

TEST(DeviceRecognisers, ForgettingAllButSomeKeepsOnlyTheirTouches) {
    DeviceRecognisers recognisers;
    recognisers.update(mouse, fingers(2), 1.0);
    recognisers.update(trackpad, fingers(3), 1.05);

    recognisers.forgetAllBut([](std::uint64_t device) { return device == mouse; });

    EXPECT_EQ(recognisers.deviceCount(), 1U);
    EXPECT_NE(recognisers.find(mouse), nullptr);
    EXPECT_EQ(recognisers.find(trackpad), nullptr);
    EXPECT_EQ(recognisers.update(mouse, lifted, 1.1), 2);
    EXPECT_EQ(recognisers.update(trackpad, lifted, 1.1), std::nullopt);
}

TEST(DeviceRecognisers, ALeavingDeviceTakesItsTouchAlong) {
    DeviceRecognisers recognisers;
    recognisers.update(mouse, fingers(1), 1.0);
    recognisers.update(trackpad, fingers(2), 1.0);

    recognisers.forget(trackpad);

    EXPECT_EQ(recognisers.find(trackpad), nullptr);
    EXPECT_EQ(recognisers.deviceCount(), 1u);
    EXPECT_EQ(recognisers.update(trackpad, lifted, 1.1), std::nullopt);
    EXPECT_EQ(recognisers.update(mouse, lifted, 1.1), 1);
}

TEST(DeviceRecognisers, ADeviceThatSentNothingHasNoTouch) {
    DeviceRecognisers recognisers;
    recognisers.update(mouse, lifted, 1.0);

    EXPECT_EQ(recognisers.find(trackpad), nullptr);
    EXPECT_NE(recognisers.find(mouse), nullptr);
}

}  // namespace
}  // namespace tactora
