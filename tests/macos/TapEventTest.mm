// The event tap's wrapper over real CoreGraphics events.
#include <gtest/gtest.h>

#include <cstdint>

#include "core/app/ButtonRewrite.h"
#include "core/platform/EventTypes.h"
#include "macos/CFHandle.h"
#include "macos/CGTapEvent.h"

namespace tactora::testing {
namespace {

class TapEventTest : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(event_); }

    CGEventRef get() const { return event_.get(); }

    macos::CFHandle<CGEventRef> event_{CGEventCreateMouseEvent(
        nullptr, kCGEventLeftMouseDown, CGPointMake(120, 80), kCGMouseButtonLeft)};
};

TEST_F(TapEventTest, ReadsTheFieldsCoreGraphicsHolds) {
    CGEventSetIntegerValueField(get(), kCGMouseEventClickState, 2);
    CGEventSetIntegerValueField(get(), kCGEventSourceUserData, 0x544143544F52);
    const macos::CGTapEvent event(get());

    EXPECT_EQ(event.integerField(event::clickState), 2);
    EXPECT_EQ(event.integerField(event::buttonNumber), 0);
    EXPECT_EQ(event.integerField(event::sourceUserData), 0x544143544F52);
    EXPECT_EQ(event.integerField(event::senderID),
              CGEventGetIntegerValueField(get(), static_cast<CGEventField>(event::senderID)));
}

TEST_F(TapEventTest, WritesFieldsThatCoreGraphicsThenHolds) {
    macos::CGTapEvent event(get());
    event.setIntegerField(event::clickState, 3);
    event.setIntegerField(event::buttonNumber, 1);
    event.setIntegerField(event::sourceUserData, 77);
    event.setIntegerField(event::senderID, 0x1000A);

    EXPECT_EQ(CGEventGetIntegerValueField(get(), kCGMouseEventClickState), 3);
    EXPECT_EQ(CGEventGetIntegerValueField(get(), kCGMouseEventButtonNumber), 1);
    EXPECT_EQ(CGEventGetIntegerValueField(get(), kCGEventSourceUserData), 77);
    EXPECT_EQ(event.integerField(event::senderID),
              CGEventGetIntegerValueField(get(), static_cast<CGEventField>(event::senderID)));
}

TEST_F(TapEventTest, ChangesTheEventsType) {
    macos::CGTapEvent event(get());
    event.setType(event::rightMouseDragged);
    EXPECT_EQ(CGEventGetType(get()), kCGEventRightMouseDragged);
    event.setType(event::otherMouseUp);
    EXPECT_EQ(CGEventGetType(get()), kCGEventOtherMouseUp);
}

TEST_F(TapEventTest, ARewrittenPressKeepsItsPlaceAndClickState) {
    CGEventSetIntegerValueField(get(), kCGMouseEventClickState, 1);
    macos::CGTapEvent event(get());

    rewriteButton(event, MouseButton::right, true, false);
    EXPECT_EQ(CGEventGetType(get()), kCGEventRightMouseDown);
    EXPECT_EQ(CGEventGetIntegerValueField(get(), kCGMouseEventButtonNumber), 1);
    EXPECT_EQ(CGEventGetIntegerValueField(get(), kCGMouseEventClickState), 1);
    const CGPoint location = CGEventGetLocation(get());
    EXPECT_EQ(location.x, 120);
    EXPECT_EQ(location.y, 80);

    rewriteButton(event, MouseButton::centre, false, true);
    EXPECT_EQ(CGEventGetType(get()), kCGEventOtherMouseDragged);
    EXPECT_EQ(CGEventGetIntegerValueField(get(), kCGMouseEventButtonNumber), 2);
}

}  // namespace
}  // namespace tactora::testing
