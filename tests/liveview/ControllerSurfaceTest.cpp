#include <gtest/gtest.h>

#include <memory>

#include "app/ControllerSurfaceTest.h"
#include "core/liveview/TouchSurface.h"

namespace tactora::testing {
namespace {

TEST_F(ControllerSurfaceTest, TheWindowsVisibilityIsWatchedOnceItIsBuilt) {
    ControllerHarness fresh;
    EXPECT_FALSE(fresh.surface.observed());

    fresh.c().applicationDidFinishLaunching();
    EXPECT_TRUE(fresh.surface.observed());
    EXPECT_FALSE(fresh.a().liveView().visible());
}

TEST_F(ControllerSurfaceTest, NothingIsDrawnWhileTheWindowIsNotVisible) {
    h.rest(2);
    h.queue.advance(0.5);
    h.frame(0);

    EXPECT_EQ(h.surface.shows, 0U);
}

TEST_F(ControllerSurfaceTest, BecomingVisibleDrawsAtOnce) {
    showWindow();

    EXPECT_TRUE(h.a().liveView().visible());
    EXPECT_EQ(h.surface.shows, 1U);
    EXPECT_EQ(shown().fingers, 0);
    EXPECT_EQ(shown().accessibilityText, "0 | none");
}

TEST_F(ControllerSurfaceTest, EveryFrameIsDrawnWhileVisible) {
    showWindow();
    h.frame(3, 0.25F);

    EXPECT_EQ(shown().fingers, 3);
    EXPECT_EQ(shown().fingersText, "3 fingers");
    ASSERT_EQ(shown().contacts().size(), 3U);
    EXPECT_DOUBLE_EQ(shown().contacts()[0].left, 0.25);
    EXPECT_DOUBLE_EQ(shown().contacts()[0].top, 0.5);

    h.frame(0);
    EXPECT_TRUE(shown().contacts().empty());
}

TEST_F(ControllerSurfaceTest, HidingTheWindowStopsDrawing) {
    showWindow();
    h.rest(1);
    const std::size_t before = h.surface.shows;

    h.surface.setVisible(false);
    h.rest(2);
    h.queue.advance(1);

    EXPECT_FALSE(h.a().liveView().visible());
    EXPECT_EQ(h.surface.shows, before);
    EXPECT_EQ(shown().fingers, 1);
}

TEST_F(ControllerSurfaceTest, RestingFingersVanishOnceFramesStop) {
    showWindow();
    h.rest(2);

    // No frame for longer than the contacts live: the refresh timer redraws without them.
    h.queue.advance(0.61);
    EXPECT_EQ(shown().fingers, 0);
    EXPECT_TRUE(shown().contacts().empty());
}

TEST_F(ControllerSurfaceTest, ATapIsHighlightedWithItsActionForASecondAfterTheAction) {
    h.assign(5, action::copy);
    showWindow();
    h.tap(2);

    EXPECT_TRUE(shown().highlighted);
    EXPECT_EQ(shown().gestureText, "tap 2");
    EXPECT_EQ(shown().actionText, "");

    h.queue.advance(Controller::tapDelay);
    const double performedAt = h.clock.now;
    EXPECT_EQ(shown().actionText, "Copy");
    EXPECT_EQ(shown().accessibilityText, "0 | tap 2 | Copy");

    runUntil(performedAt + TouchSurface::highlightDuration - 0.001);
    EXPECT_TRUE(shown().highlighted);
    runUntil(performedAt + TouchSurface::highlightDuration);
    EXPECT_FALSE(shown().highlighted);
    EXPECT_EQ(shown().accessibilityText, "0 | tap 2 | Copy");
}

TEST_F(ControllerSurfaceTest, ATapThatCannotRunShowsOnlyTheGesture) {
    h.assign(5, action::copy);
    h.c().pause();
    showWindow();
    h.tap(2);
    h.queue.advance(0.5);

    EXPECT_TRUE(shown().highlighted);
    EXPECT_EQ(shown().gestureText, "tap 2");
    EXPECT_EQ(shown().actionText, "");
    EXPECT_EQ(h.performedCount(), 0U);
}

TEST_F(ControllerSurfaceTest, ATapOnTheSystemDefaultShowsOnlyTheGesture) {
    showWindow();
    h.tap(1);
    h.queue.advance(0.5);

    EXPECT_EQ(shown().gestureText, "tap 1");
    EXPECT_EQ(shown().actionText, "");
}

TEST_F(ControllerSurfaceTest, ARecordedShortcutIsNamedByItsKeys) {
    h.assign(4, action::custom);
    h.c().profiles().setShortcut(SavedShortcut(8, 0x100000, "⌘C"), 4);
    showWindow();
    h.tap(1);
    h.queue.advance(Controller::tapDelay);

    EXPECT_EQ(shown().actionText, "⌘C");
}

TEST_F(ControllerSurfaceTest, AFurtherActionIsNamedByItsOwnName) {
    // The test's table has no text for it, so its key shows.
    h.c().profiles().setExtra({ExtraAction::spotlight, ""}, 4);
    showWindow();
    h.tap(1);
    h.queue.advance(Controller::tapDelay);

    EXPECT_EQ(shown().actionText, "action.spotlight");
}

TEST_F(ControllerSurfaceTest, ARewrittenClickIsHighlightedWithItsActionAtOnce) {
    h.assign(1, action::right);
    showWindow();
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.runReady();  // what the tap decided is told once it has answered

    EXPECT_TRUE(shown().highlighted);
    EXPECT_EQ(shown().gestureText, "click 2");
    EXPECT_EQ(shown().actionText, "Right click");
}

TEST_F(ControllerSurfaceTest, ASwallowedClickNamesItsActionOnRelease) {
    h.assign(2, action::copy);
    showWindow();
    h.rest(3);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.runReady();
    EXPECT_EQ(shown().gestureText, "click 3");
    EXPECT_EQ(shown().actionText, "");

    h.queue.advance(2);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(up);
    h.queue.runReady();
    EXPECT_TRUE(shown().highlighted);
    EXPECT_EQ(shown().actionText, "Copy");
}

TEST_F(ControllerSurfaceTest, AHighlightBegunWhileHiddenIsShownAndEndsOnTime) {
    h.tap(4);
    const double recognisedAt = h.clock.now;
    h.queue.advance(0.5);

    showWindow();
    EXPECT_TRUE(shown().highlighted);
    EXPECT_EQ(shown().gestureText, "tap 4");

    runUntil(recognisedAt + TouchSurface::highlightDuration - 0.001);
    EXPECT_TRUE(shown().highlighted);
    runUntil(recognisedAt + TouchSurface::highlightDuration);
    EXPECT_FALSE(shown().highlighted);
}

}  // namespace
}  // namespace tactora::testing
