// The activity held while gestures are on: user-initiated, allowing idle sleep, and not
// latency-critical.
#import <Foundation/Foundation.h>

#include <gtest/gtest.h>

#include "macos/SystemProcessActivity.h"

namespace tactora::testing {
namespace {

TEST(ProcessActivityTest, TheActivityIsUserInitiatedAndLetsTheSystemSleep) {
    const NSActivityOptions options = macos::gestureActivityOptions;
    EXPECT_EQ(options & NSActivityUserInitiatedAllowingIdleSystemSleep,
              NSActivityUserInitiatedAllowingIdleSystemSleep);
    EXPECT_EQ(options & NSActivityIdleSystemSleepDisabled, 0U);
}

TEST(ProcessActivityTest, TheActivityIsNotLatencyCritical) {
    EXPECT_EQ(macos::gestureActivityOptions & NSActivityLatencyCritical, 0U);
}

}  // namespace
}  // namespace tactora::testing
