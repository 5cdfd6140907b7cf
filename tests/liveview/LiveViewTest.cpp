// The live view through its own interface: told notes as the controller would tell them.
#include <gtest/gtest.h>

#include <array>
#include <memory>

#include "app/fakes/FakeClock.h"
#include "app/fakes/FakeMainQueue.h"
#include "app/fakes/FakeSurfaceView.h"
#include "core/app/Globals.h"
#include "core/liveview/LiveView.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"

namespace tactora::testing {
namespace {

class LiveViewTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setStringTable(std::make_shared<const StringsTable>(StringsTable::Entries{
            {"gesture.tap", "tap %d"},
            {"gesture.click", "click %d"},
            {"action.copy", "Copy"},
        }));
        initializeGlobals();
        view->launched(clock.now);
    }
    void TearDown() override { setStringTable(nullptr); }

    FakeClock clock;
    FakeMainQueue queue{clock};
    FakeSurfaceView surface;
    std::shared_ptr<LiveView> view = LiveView::create(surface, clock, queue);
};

TEST_F(LiveViewTest, DrawsNothingUntilTheWindowIsVisible) {
    const std::array<Finger, 2> fingers{Finger(1, 0.5, 0.5), Finger(2, 0.6, 0.5)};
    view->frameReceived({.fingers = fingers, .shapes = {}, .time = clock.now});
    view->gestureRecognised({GestureKind::tap, 2, action::copy, clock.now});
    view->refreshed(clock.now);
    EXPECT_EQ(surface.shows, 0U);

    surface.setVisible(true);
    EXPECT_TRUE(view->visible());
    EXPECT_EQ(surface.shows, 1U);
    EXPECT_EQ(surface.shown.fingers, 0);  // frames while hidden are not kept
    EXPECT_TRUE(surface.shown.highlighted);
}

TEST_F(LiveViewTest, NamesTheActionsOfGesturesButNotDirectOnesOrTheSystemDefault) {
    surface.setVisible(true);
    view->gestureRecognised({GestureKind::tap, 1, action::copy, clock.now});
    view->actionPerformed(
        {action::copy, std::nullopt, ActionOrigin::direct, 0, std::nullopt, clock.now});
    EXPECT_EQ(surface.shown.actionText, "");
    view->actionPerformed(
        {action::defaultAction, std::nullopt, ActionOrigin::tap, 1, std::nullopt, clock.now});
    EXPECT_EQ(surface.shown.actionText, "");

    view->actionPerformed(
        {action::copy, std::nullopt, ActionOrigin::tap, 1, std::nullopt, clock.now});
    EXPECT_EQ(surface.shown.actionText, "Copy");
}

TEST_F(LiveViewTest, TheHighlightEndsOnItsOwnWhileVisible) {
    surface.setVisible(true);
    view->gestureRecognised({GestureKind::click, 3, action::copy, clock.now});
    EXPECT_TRUE(surface.shown.highlighted);

    queue.advance(TouchSurface::highlightDuration);
    EXPECT_FALSE(surface.shown.highlighted);
}

}  // namespace
}  // namespace tactora::testing
