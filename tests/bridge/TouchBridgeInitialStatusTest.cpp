// The bridge before it was ever started. Kept in a program of its own: no test here may start
// the bridge, so the result holds whichever test runs first.
#include "bridge/TouchBridge.h"

#include <gtest/gtest.h>

namespace {

TEST(TouchBridgeBeforeStart, StatusIsNotStarted) {
    EXPECT_STREQ(TAStatus(), "sensor.not_started");
    EXPECT_EQ(TAStatusError(), 0);
}

TEST(TouchBridgeBeforeStart, StopIsSafeAndKeepsTheStatus) {
    TAStop();
    TAStop();

    EXPECT_STREQ(TAStatus(), "sensor.not_started");
}

TEST(TouchBridgeBeforeStart, NoSenderIsTheMouseForTheNullId) {
    EXPECT_FALSE(TAIsMouseSender(0));
}

}  // namespace
