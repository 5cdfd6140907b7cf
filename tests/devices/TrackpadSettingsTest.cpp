#include "core/devices/TrackpadSettings.h"

#include <gtest/gtest.h>

#include "devices/FakeSystemPreferences.h"

namespace tactora::testing {
namespace {

constexpr const char* builtIn = "com.apple.AppleMultitouchTrackpad";
constexpr const char* bluetooth = "com.apple.driver.AppleBluetoothMultitouch.trackpad";

TEST(TrackpadSettings, NothingStoredReadsAsTheSystemsDefaults) {
    const FakeSystemPreferences preferences;

    const TrackpadSettings settings = readTrackpadSettings(preferences);

    EXPECT_FALSE(settings.tapToClick);
    EXPECT_TRUE(settings.secondaryClick);
    EXPECT_FALSE(settings.threeFingerDrag);
    EXPECT_FALSE(settings.lookUpByThreeFingerTap);
    EXPECT_TRUE(settings.smartZoom);
}

TEST(TrackpadSettings, ReadsEachSettingFromItsKey) {
    FakeSystemPreferences preferences;
    preferences.set(builtIn, "Clicking", 1);
    preferences.set(builtIn, "TrackpadRightClick", 0);
    preferences.set(builtIn, "TrackpadThreeFingerDrag", 1);
    preferences.set(builtIn, "TrackpadThreeFingerTapGesture", 2);
    preferences.set(builtIn, "TrackpadTwoFingerDoubleTapGesture", 0);

    const TrackpadSettings settings = readTrackpadSettings(preferences);

    EXPECT_EQ(settings, (TrackpadSettings{.tapToClick = true,
                                          .secondaryClick = false,
                                          .threeFingerDrag = true,
                                          .lookUpByThreeFingerTap = true,
                                          .smartZoom = false}));
}

TEST(TrackpadSettings, LookUpIsTheThreeFingerTapOnlyForValueTwo) {
    FakeSystemPreferences preferences;
    preferences.set(builtIn, "TrackpadThreeFingerTapGesture", 0);
    EXPECT_FALSE(readTrackpadSettings(preferences).lookUpByThreeFingerTap);
    preferences.set(builtIn, "TrackpadThreeFingerTapGesture", 1);
    EXPECT_FALSE(readTrackpadSettings(preferences).lookUpByThreeFingerTap);
    preferences.set(builtIn, "TrackpadThreeFingerTapGesture", 2);
    EXPECT_TRUE(readTrackpadSettings(preferences).lookUpByThreeFingerTap);
}

TEST(TrackpadSettings, TheMagicTrackpadsDomainFillsInWhatTheBuiltInOneLacks) {
    FakeSystemPreferences preferences;
    preferences.set(bluetooth, "Clicking", 1);
    preferences.set(bluetooth, "TrackpadTwoFingerDoubleTapGesture", 1);
    preferences.set(builtIn, "TrackpadTwoFingerDoubleTapGesture", 0);

    const TrackpadSettings settings = readTrackpadSettings(preferences);

    EXPECT_TRUE(settings.tapToClick);
    EXPECT_FALSE(settings.smartZoom) << "the built-in trackpad's domain is read first";
}

}  // namespace
}  // namespace tactora::testing
