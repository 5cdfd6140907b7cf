#include "core/keepon/DeviceNotices.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

TEST(DeviceNoticesTest, AnArrivalReconnectsOnlyWhileNoMouseIsConnected) {
    EXPECT_TRUE(arrivalReconnects(0));
    EXPECT_FALSE(arrivalReconnects(42));
}

TEST(DeviceNoticesTest, OnlyTheConnectedMouseLeavingReconnects) {
    EXPECT_TRUE(departureReconnects(42, 42));
    EXPECT_FALSE(departureReconnects(7, 42));
    EXPECT_FALSE(departureReconnects(42, 0));
    // An unknown device (id 0) is never the connected one.
    EXPECT_FALSE(departureReconnects(0, 0));
}

}  // namespace
}  // namespace tactora
