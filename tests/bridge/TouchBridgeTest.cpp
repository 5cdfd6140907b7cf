#include "bridge/TouchBridge.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "FakeLibraryPaths.h"
#include "bridge/BridgeTesting.h"
#include "bridge/FakeFramework.h"
#include "bridge/FrameRecorder.h"
#include "bridge/RawFrame.h"
#include "bridge/ScratchDirectory.h"

// Names the variant in test output instead of its bytes.
void PrintTo(const FakeMultitouchVariant& variant, std::ostream* stream) {
    *stream << "without " << variant.missingFunction;
}

namespace tactora::testing {
namespace {

constexpr std::uint32_t kTrackpad = 11;
constexpr std::uint32_t kMouse = 22;
constexpr std::uint32_t kSecondMouse = 33;

class TouchBridge : public ::testing::Test {
  protected:
    void SetUp() override { FrameRecorder::clear(); }

    std::int32_t start() { return TAStart(FrameRecorder::record); }

    FakeFramework fake_;
};

TEST_F(TouchBridge, ReportsUnavailableWhenTheFrameworkCannotBeLoaded) {
    TASetFrameworkPath("/nonexistent/MultitouchSupport");

    EXPECT_EQ(start(), 0);
    EXPECT_STREQ(TAStatus(), "sensor.unavailable");
    EXPECT_EQ(TAStatusError(), 0);
}

TEST_F(TouchBridge, SystemFrameworkIsUnavailableOffApple) {
    TASetFrameworkPath(nullptr);

    EXPECT_EQ(start(), 0);
    EXPECT_STREQ(TAStatus(), "sensor.unavailable");
}

TEST_F(TouchBridge, RetriesAFailedLoadOnTheNextStart) {
    ScratchDirectory directory;
    const std::string copy = directory.file("MultitouchSupport");
    TASetFrameworkPath(copy.c_str());
    ASSERT_EQ(start(), 0);
    ASSERT_STREQ(TAStatus(), "sensor.unavailable");

    std::filesystem::copy_file(kFakeMultitouchPath, copy);
    LoadedLibrary appeared(copy);
    const FakeMultitouchControls* controls =
        appeared.function<FakeMultitouchControlsFunction>("fakeMultitouchControls")();
    controls->reset();
    controls->addDevice(kMouse, true);
    TASetPortableMouseTest(controls->serviceIsMouse);

    EXPECT_EQ(start(), 1);
    EXPECT_STREQ(TAStatus(), "sensor.connected");
    EXPECT_EQ(controls->log->starts, 1);
    TAStop();
}

class TouchBridgeWithoutAFunction : public ::testing::TestWithParam<FakeMultitouchVariant> {};

TEST_P(TouchBridgeWithoutAFunction, ReportsIncompatible) {
    FakeFramework fake(GetParam().path);
    fake.controls().addDevice(kMouse, true);

    EXPECT_EQ(TAStart(FrameRecorder::record), 0);
    EXPECT_STREQ(TAStatus(), "sensor.incompatible");
    EXPECT_EQ(fake.log().listsCreated, 0);
    EXPECT_EQ(fake.log().starts, 0);
}

INSTANTIATE_TEST_SUITE_P(EachFunction, TouchBridgeWithoutAFunction,
                         ::testing::ValuesIn(kFakeMultitouchVariants), [](const auto& variant) {
                             return std::string(variant.param.missingFunction);
                         });

TEST_F(TouchBridge, ReportsMissingWhenThereIsNoDeviceList) {
    fake_.controls().setListAvailable(false);

    EXPECT_EQ(start(), 0);
    EXPECT_STREQ(TAStatus(), "sensor.missing");
}

TEST_F(TouchBridge, ReportsMissingAndHoldsTheListUntilStopWhenNoDeviceIsAMouse) {
    fake_.controls().addDevice(kTrackpad, false);

    EXPECT_EQ(start(), 0);
    EXPECT_STREQ(TAStatus(), "sensor.missing");
    EXPECT_EQ(fake_.log().listsReleased, 0);

    TAStop();
    EXPECT_EQ(fake_.log().listsReleased, 1);
    EXPECT_EQ(fake_.log().starts, 0);
}

TEST_F(TouchBridge, ListensToTheFirstMouseInListOrder) {
    fake_.controls().addDevice(kTrackpad, false);
    fake_.controls().addDevice(kMouse, true);
    fake_.controls().addDevice(kSecondMouse, true);

    EXPECT_EQ(start(), 1);
    EXPECT_EQ(fake_.log().starts, 1);
    EXPECT_EQ(fake_.log().startedService, kMouse);
}

TEST_F(TouchBridge, ConnectsByStartingTheMouseInModeZero) {
    fake_.controls().addDevice(kMouse, true);

    EXPECT_EQ(start(), 1);
    EXPECT_STREQ(TAStatus(), "sensor.connected");
    EXPECT_EQ(TAStatusError(), 0);
    EXPECT_EQ(fake_.log().startMode, 0);
    EXPECT_TRUE(fake_.log().handlerRegistered);
}

TEST_F(TouchBridge, FailedDeviceStartLeavesTheErrorAndTheModuleStopped) {
    fake_.controls().addDevice(kMouse, true);
    fake_.controls().setStartResult(-536870174);

    EXPECT_EQ(start(), 0);
    EXPECT_STREQ(TAStatus(), "sensor.blocked");
    EXPECT_EQ(TAStatusError(), -536870174);
    EXPECT_FALSE(fake_.log().handlerRegistered);
    EXPECT_EQ(fake_.log().stops, 1);
    EXPECT_EQ(fake_.log().listsReleased, 1);

    ASSERT_TRUE(fake_.controls().deliverFrame(RawFrame(touchingContacts(1)).data(), 1));
    EXPECT_TRUE(FrameRecorder::received().empty());
}

TEST_F(TouchBridge, NextStartClearsTheStatusError) {
    fake_.controls().addDevice(kMouse, true);
    fake_.controls().setStartResult(7);
    ASSERT_EQ(start(), 0);

    fake_.controls().setStartResult(0);

    EXPECT_EQ(start(), 1);
    EXPECT_EQ(TAStatusError(), 0);
}

TEST_F(TouchBridge, StopEndsTheConnectionAndKeepsTheStatus) {
    fake_.controls().addDevice(kMouse, true);
    ASSERT_EQ(start(), 1);

    TAStop();

    EXPECT_FALSE(fake_.log().handlerRegistered);
    EXPECT_EQ(fake_.log().stops, 1);
    EXPECT_EQ(fake_.log().stoppedService, kMouse);
    EXPECT_EQ(fake_.log().listsReleased, 1);
    EXPECT_STREQ(TAStatus(), "sensor.connected");
    ASSERT_TRUE(fake_.controls().deliverFrame(RawFrame(touchingContacts(1)).data(), 1));
    EXPECT_TRUE(FrameRecorder::received().empty());
}

TEST_F(TouchBridge, StopIsSafeWhenNothingRuns) {
    fake_.controls().addDevice(kMouse, true);
    ASSERT_EQ(start(), 1);
    TAStop();

    TAStop();

    EXPECT_EQ(fake_.log().stops, 1);
    EXPECT_EQ(fake_.log().unregistrations, 1);
    EXPECT_EQ(fake_.log().listsReleased, 1);
}

TEST_F(TouchBridge, StartEndsTheEarlierConnectionFirst) {
    fake_.controls().addDevice(kMouse, true);
    ASSERT_EQ(start(), 1);

    EXPECT_EQ(start(), 1);

    EXPECT_EQ(fake_.log().starts, 2);
    EXPECT_EQ(fake_.log().stops, 1);
    EXPECT_EQ(fake_.log().listsCreated, 2);
    EXPECT_EQ(fake_.log().listsReleased, 1);
}

TEST_F(TouchBridge, DeliversTheTouchingContactsOfAFrameToTheClient) {
    fake_.controls().addDevice(kMouse, true);
    ASSERT_EQ(start(), 1);
    RawContact palm{6, kPressing, 0.75f, 1.0f};
    palm.size = 4.5f;
    RawFrame raw({{4, kTouching, 0.25f, 0.5f}, {5, kHovering, 0.1f, 0.1f}, palm});

    ASSERT_TRUE(fake_.controls().deliverFrame(raw.data(), raw.count()));

    // Each with its shape's first value, its size.
    const std::vector<DeliveredContact> expected{{4, 0.25f, 0.5f, 0.0f}, {6, 0.75f, 1.0f, 4.5f}};
    ASSERT_EQ(FrameRecorder::received().size(), 1u);
    EXPECT_EQ(FrameRecorder::received()[0], expected);
}

TEST_F(TouchBridge, DeliversAFrameWithoutTouchesAsCountZero) {
    fake_.controls().addDevice(kMouse, true);
    ASSERT_EQ(start(), 1);
    RawFrame raw(touchingContacts(2, kLifting));

    ASSERT_TRUE(fake_.controls().deliverFrame(raw.data(), raw.count()));

    ASSERT_EQ(FrameRecorder::received().size(), 1u);
    EXPECT_TRUE(FrameRecorder::received()[0].empty());
}

TEST_F(TouchBridge, DropsImplausibleFramesBeforeTheClient) {
    fake_.controls().addDevice(kMouse, true);
    ASSERT_EQ(start(), 1);
    RawFrame crowded(touchingContacts(33));

    ASSERT_TRUE(fake_.controls().deliverFrame(crowded.data(), crowded.count()));
    ASSERT_TRUE(fake_.controls().deliverFrame(nullptr, 2));

    EXPECT_TRUE(FrameRecorder::received().empty());
}

TEST_F(TouchBridge, NoInputDeviceIsTheMouseOffApple) {
    fake_.controls().addDevice(kMouse, true);
    ASSERT_EQ(start(), 1);

    EXPECT_FALSE(TAIsMouseSender(0));
    EXPECT_FALSE(TAIsMouseSender(kMouse));
}

}  // namespace
}  // namespace tactora::testing
