#include <gtest/gtest.h>

#include <cstdint>

#include "app/ControllerHarness.h"
#include "core/moresheet/MoreSheet.h"
#include "core/profiles/MoreGestureSlot.h"

namespace tactora::testing {
namespace {

std::int64_t tag(MoreGestureSlot slot) {
    return static_cast<std::int64_t>(moreslot::index(slot));
}

// The sheet as the running program wires it: what it stores reaches the further gestures'
// recognisers at once, not only at the next refresh of the window.
class MoreSheetWiringTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        h.a().moreSheet().open();
    }

    ControllerHarness h;
};

TEST_F(MoreSheetWiringTest, AGestureMappedInTheSheetIsListenedForBeforeAnyRefresh) {
    ASSERT_FALSE(h.a().moreGestures().listening());

    h.a().moreSheet().changed(tag(moreslot::forSwipe(2, SwipeDirection::left)),
                              action::missionControl);

    EXPECT_TRUE(h.a().moreGestures().listening());
    EXPECT_EQ(
        h.c().profiles().current().moreGestures.action(moreslot::forSwipe(2, SwipeDirection::left)),
        action::missionControl);
}

TEST_F(MoreSheetWiringTest, AGestureTurnedOffInTheSheetIsNoLongerListenedFor) {
    const std::int64_t hold = tag(MoreGestureSlot::tapHold);
    h.a().moreSheet().changed(hold, action::middle);
    ASSERT_TRUE(h.a().moreGestures().listening());

    h.a().moreSheet().changed(hold, action::defaultAction);

    EXPECT_FALSE(h.a().moreGestures().listening());
}

}  // namespace
}  // namespace tactora::testing
