// Device watching off Apple systems, where there is no device registry to watch.
#include "bridge/DeviceWatch.h"

#include <gtest/gtest.h>

namespace {

void countChange(void* context, int32_t arrived, uint64_t entryID) {
    ++*static_cast<int*>(context);
    (void)arrived;
    (void)entryID;
}

TEST(DeviceWatchTest, IsUnavailableWithoutTheRegistry) {
    int changes = 0;
    TADeviceWatch* watch = TAWatchDevices(&countChange, &changes);
    EXPECT_EQ(watch, nullptr);
    TAStopWatchingDevices(watch);
    EXPECT_EQ(changes, 0);
}

}  // namespace
