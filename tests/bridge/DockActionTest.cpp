#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "FakeLibraryPaths.h"
#include "bridge/BridgeTesting.h"
#include "bridge/LoadedLibrary.h"
#include "bridge/ScratchDirectory.h"
#include "bridge/TouchBridge.h"
#include "bridge/fakes/FakeDockControls.h"

namespace tactora::testing {
namespace {

class DockAction : public ::testing::Test {
  protected:
    void TearDown() override { TASetDockLibraryPath(nullptr); }

    ScratchDirectory directory_;
};

FakeDockState& dockState(const LoadedLibrary& dock) {
    return *dock.function<FakeDockStateFunction>("fakeDockState")();
}

TEST_F(DockAction, ReturnsMinusOneOffAppleEveryTime) {
    EXPECT_EQ(TADesktopAction(1), -1);
    EXPECT_EQ(TADesktopAction(0), -1);
}

TEST_F(DockAction, ReturnsMinusOneWhenTheLibraryLacksTheDockCall) {
    TASetDockLibraryPath(kFakeMultitouchPath);

    EXPECT_EQ(TADesktopAction(1), -1);
}

TEST_F(DockAction, OpensTheLibraryAgainAfterAFailedOpen) {
    const std::string path = directory_.file("HIServices");
    TASetDockLibraryPath(path.c_str());
    ASSERT_EQ(TADesktopAction(0), -1);

    std::filesystem::copy_file(kFakeDockPath, path);
    LoadedLibrary dock(path);
    dockState(dock).result = 0;

    EXPECT_EQ(TADesktopAction(0), 0);
    EXPECT_EQ(dockState(dock).calls, 1);
}

TEST_F(DockAction, AsksForShowDesktopWhenDesktopIsNonZero) {
    TASetDockLibraryPath(kFakeDockPath);
    LoadedLibrary dock(kFakeDockPath);
    dockState(dock) = FakeDockState{};

    EXPECT_EQ(TADesktopAction(2), 0);
    EXPECT_STREQ(dockState(dock).lastNotification, "com.apple.showdesktop.awake");
    EXPECT_EQ(dockState(dock).lastFlags, 0);
}

TEST_F(DockAction, AsksForMissionControlWhenDesktopIsZero) {
    TASetDockLibraryPath(kFakeDockPath);
    LoadedLibrary dock(kFakeDockPath);
    dockState(dock) = FakeDockState{};

    EXPECT_EQ(TADesktopAction(0), 0);
    EXPECT_STREQ(dockState(dock).lastNotification, "com.apple.expose.awake");
    EXPECT_EQ(dockState(dock).lastFlags, 0);
}

TEST_F(DockAction, ReturnsTheDockStatus) {
    TASetDockLibraryPath(kFakeDockPath);
    LoadedLibrary dock(kFakeDockPath);
    dockState(dock) = FakeDockState{};
    dockState(dock).result = 1001;

    EXPECT_EQ(TADesktopAction(1), 1001);
    EXPECT_EQ(TADesktopAction(1), 1001);
    EXPECT_EQ(dockState(dock).calls, 2);
}

TEST_F(DockAction, SendsANamedNotificationAsGiven) {
    TASetDockLibraryPath(kFakeDockPath);
    LoadedLibrary dock(kFakeDockPath);
    dockState(dock) = FakeDockState{};
    dockState(dock).result = 7;

    EXPECT_EQ(TADockNotification("com.apple.launchpad.toggle"), 7);
    EXPECT_STREQ(dockState(dock).lastNotification, "com.apple.launchpad.toggle");
    EXPECT_EQ(dockState(dock).lastFlags, 0);
    EXPECT_EQ(dockState(dock).calls, 1);
}

TEST_F(DockAction, ANamedNotificationWithoutTheDockCallOrANameIsMinusOne) {
    EXPECT_EQ(TADockNotification("com.apple.expose.front.awake"), -1);
    TASetDockLibraryPath(kFakeDockPath);
    EXPECT_EQ(TADockNotification(nullptr), -1);
}

}  // namespace
}  // namespace tactora::testing
