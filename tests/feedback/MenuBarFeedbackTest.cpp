// The menu-bar feedback through its own interface, drawing on a recorded status display.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "app/fakes/FakeClock.h"
#include "app/fakes/FakeMainQueue.h"
#include "core/feedback/MenuBarFeedback.h"
#include "core/localization/Localizer.h"
#include "core/profiles/MemoryPreferences.h"
#include "support/RecordedStatusDisplay.h"

namespace tactora::testing {
namespace {

class MenuBarFeedbackTest : public ::testing::Test {
  protected:
    std::shared_ptr<MenuBarFeedback> make() {
        return MenuBarFeedback::create(defaults, display, clock, queue);
    }

    FakeClock clock;
    FakeMainQueue queue{clock};
    RecordedStatusDisplay display;
    std::shared_ptr<MemoryPreferences> defaults = std::make_shared<MemoryPreferences>();
};

TEST_F(MenuBarFeedbackTest, PutsItsUncheckedItemInTheStatusMenu) {
    const auto feedback = make();

    ASSERT_EQ(display.entries.size(), 1U);
    EXPECT_EQ(display.entries.back(),
              (MenuEntry{"menu.feedback", MenuCommand::toggleMenuBarFeedback, "", false}));
    EXPECT_FALSE(feedback->isOn());
}

TEST_F(MenuBarFeedbackTest, ATakenClickShowsItsFingersAndATapOnlyOnceItsActionRan) {
    const auto feedback = make();
    feedback->toggle();
    EXPECT_TRUE(display.entries.back().checked);

    feedback->gestureRecognised({GestureKind::tap, 2, action::copy, clock.now});
    EXPECT_EQ(display.title, "");
    feedback->actionPerformed(
        {action::copy, std::nullopt, ActionOrigin::tap, 2, std::nullopt, clock.now});
    EXPECT_EQ(display.title, "2");

    queue.advance(MenuBarFeedback::duration);
    EXPECT_EQ(display.title, "");
    feedback->gestureRecognised({GestureKind::click, 3, action::copy, clock.now});
    EXPECT_EQ(display.title, "3");
}

TEST_F(MenuBarFeedbackTest, DirectActionsAndTheSystemDefaultShowNothing) {
    const auto feedback = make();
    feedback->toggle();
    feedback->actionPerformed(
        {action::copy, std::nullopt, ActionOrigin::direct, 0, std::nullopt, clock.now});
    feedback->gestureRecognised({GestureKind::click, 2, action::defaultAction, clock.now});

    EXPECT_EQ(feedback->title(clock.now), "");
}

TEST_F(MenuBarFeedbackTest, WithoutADomainItIsOffAndKeepsNothing) {
    const auto feedback = MenuBarFeedback::create(nullptr, display, clock, queue);
    EXPECT_FALSE(feedback->isOn());
    feedback->toggle();
    EXPECT_TRUE(feedback->isOn());
}

}  // namespace
}  // namespace tactora::testing
