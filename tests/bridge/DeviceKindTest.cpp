#include "bridge/DeviceKind.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

TADeviceProperties properties(const char* accelerationType, const char* product,
                              bool builtIn = false) {
    TADeviceProperties result{};
    std::snprintf(result.accelerationType, sizeof result.accelerationType, "%s", accelerationType);
    std::snprintf(result.product, sizeof result.product, "%s", product);
    result.builtIn = builtIn;
    return result;
}

TEST(DeviceKind, TheMouseTestDecidesFirst) {
    const TADeviceProperties trackpadLooking = properties("HIDTrackpadAcceleration", "Trackpad");

    EXPECT_EQ(TAClassifyDevice(true, &trackpadLooking), TADeviceKindMagicMouse);
}

TEST(DeviceKind, TheTrackpadsAccelerationTypeMakesATrackpad) {
    const TADeviceProperties external = properties("HIDTrackpadAcceleration", "");
    const TADeviceProperties builtIn = properties("HIDTrackpadAcceleration", "", true);

    EXPECT_EQ(TAClassifyDevice(false, &external), TADeviceKindMagicTrackpad);
    EXPECT_EQ(TAClassifyDevice(false, &builtIn), TADeviceKindBuiltInTrackpad);
}

TEST(DeviceKind, AProductNamedTrackpadInAnyCaseIsATrackpad) {
    const TADeviceProperties named = properties("", "Anna's magic TRACKPAD");
    const TADeviceProperties laptop = properties("", "Apple Internal Keyboard / Trackpad", true);

    EXPECT_EQ(TAClassifyDevice(false, &named), TADeviceKindMagicTrackpad);
    EXPECT_EQ(TAClassifyDevice(false, &laptop), TADeviceKindBuiltInTrackpad);
}

TEST(DeviceKind, AnythingElseIsAnotherKind) {
    const TADeviceProperties strip = properties("", "Touch Bar", true);
    const TADeviceProperties nothing = properties("", "");
    const TADeviceProperties pointer = properties("HIDPointerAcceleration", "Tablet");

    EXPECT_EQ(TAClassifyDevice(false, &strip), TADeviceKindOther);
    EXPECT_EQ(TAClassifyDevice(false, &nothing), TADeviceKindOther);
    EXPECT_EQ(TAClassifyDevice(false, &pointer), TADeviceKindOther);
}

TEST(DeviceKind, PropertiesDescribeAMouseByAccelerationTypeOrName) {
    const TADeviceProperties accelerated = properties("HIDMouseAcceleration", "");
    const TADeviceProperties named = properties("", "Lena's MAGIC mouse 2");
    const TADeviceProperties trackpad = properties("HIDTrackpadAcceleration", "Magic Trackpad");
    const TADeviceProperties partial = properties("", "Magic Mous");

    EXPECT_TRUE(TAPropertiesDescribeMouse(&accelerated));
    EXPECT_TRUE(TAPropertiesDescribeMouse(&named));
    EXPECT_FALSE(TAPropertiesDescribeMouse(&trackpad));
    EXPECT_FALSE(TAPropertiesDescribeMouse(&partial));
}

TEST(DeviceKind, ContainsIgnoresTheCaseOfAsciiLettersOnly) {
    EXPECT_TRUE(TAContainsIgnoringCase("abcDEF", "cde"));
    EXPECT_TRUE(TAContainsIgnoringCase("abc", ""));
    EXPECT_FALSE(TAContainsIgnoringCase("", "a"));
    EXPECT_FALSE(TAContainsIgnoringCase("ab", "abc"));
    EXPECT_FALSE(TAContainsIgnoringCase("\xc3\x84", "\xc3\xa4"));
}

}  // namespace
