#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "app/ControllerSurfaceTest.h"
#include "core/liveview/TouchSurface.h"
#include "core/reasons/ReasonText.h"

namespace tactora::testing {
namespace {

using SurfaceReasonTest = ControllerSurfaceTest;

TEST_F(SurfaceReasonTest, ARejectedTouchShowsWhyForAMoment) {
    showWindow();
    h.tap(2, 0.5);
    const double droppedAt = h.clock.now;

    EXPECT_EQ(shown().reasonText, "reason.too_long");
    EXPECT_EQ(shown().reasonText, reasons::reasonText(DropReason::tooLong));

    runUntil(droppedAt + TouchSurface::reasonDuration - 0.001);
    EXPECT_EQ(shown().reasonText, "reason.too_long");
    runUntil(droppedAt + TouchSurface::reasonDuration);
    EXPECT_EQ(shown().reasonText, "");
}

TEST_F(SurfaceReasonTest, TheReasonIsAnnounced) {
    showWindow();
    h.tap(1, 0.01);

    ASSERT_FALSE(h.surface.announcements.empty());
    EXPECT_EQ(h.surface.announcements.back(), "reason.too_short");
}

TEST_F(SurfaceReasonTest, ATapThatCannotRunShowsTheGestureAndWhyItsActionDidNot) {
    h.assign(5, action::copy);
    h.c().pause();
    showWindow();

    h.tap(2);

    EXPECT_EQ(shown().gestureText, "tap 2");
    EXPECT_EQ(shown().reasonText, "reason.gestures_off");
    ASSERT_GE(h.surface.announcements.size(), 2U);
    EXPECT_EQ(h.surface.announcements.at(h.surface.announcements.size() - 2), "tap 2");
    EXPECT_EQ(h.surface.announcements.back(), "reason.gestures_off");
}

TEST_F(SurfaceReasonTest, AClickJustAfterATapShowsThatItCancelledTheTap) {
    h.assign(4, action::copy);
    showWindow();
    h.tap(1);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    (void)h.send(down);
    h.queue.runReady();
    h.queue.advance(Controller::tapDelay);

    EXPECT_EQ(shown().reasonText, "reason.click_after");
    EXPECT_EQ(shown().actionText, "");
}

TEST_F(SurfaceReasonTest, TheTouchOfARecognisedClickShowsNoReason) {
    h.assign(1, action::right);
    showWindow();
    h.rest(2);
    h.queue.advance(0.05);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    (void)h.send(down);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    (void)h.send(up);
    h.queue.runReady();
    h.frame(0);

    EXPECT_EQ(shown().gestureText, "click 2");
    EXPECT_EQ(shown().reasonText, "");
}

TEST_F(SurfaceReasonTest, AReasonFromWhileTheWindowWasHiddenShowsWhenItComesUpInTime) {
    h.tap(3, 0.5);
    const double droppedAt = h.clock.now;
    h.queue.advance(0.5);

    showWindow();
    EXPECT_EQ(shown().reasonText, "reason.too_long");

    runUntil(droppedAt + TouchSurface::reasonDuration);
    EXPECT_EQ(shown().reasonText, "");
}

TEST_F(SurfaceReasonTest, AnOptionsReasonIsShownToo) {
    MisfireOptions options;
    options.quietAfterActivity = 0.3;
    options.forgetEarlierActivity = true;
    h.a().misfireGuard().setOptions(options);
    showWindow();
    FakeTapEvent scroll = h.mouseEvent(event::scrollWheel);
    (void)h.send(scroll);
    h.queue.runReady();

    h.tap(1);

    EXPECT_EQ(shown().reasonText, "reason.after_activity");
}

}  // namespace
}  // namespace tactora::testing
