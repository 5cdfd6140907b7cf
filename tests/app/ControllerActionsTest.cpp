#include <gtest/gtest.h>

#include "app/ControllerHarness.h"

namespace tactora::testing {
namespace {

class ControllerActionsTest : public ::testing::Test {
  protected:
    ControllerHarness h;
};

MouseButtonEvent mouse(EventType type, MouseButton button, std::int64_t clickState) {
    return {.type = type, .button = button, .clickState = clickState, .userData = marker};
}

KeyEvent key(std::uint16_t keyCode, bool down, std::uint64_t flags) {
    return {.keyCode = keyCode, .down = down, .flags = flags, .userData = marker};
}

TEST_F(ControllerActionsTest, DefaultActionPostsNothingChangesNoTextAndDoesNotRefresh) {
    h.view.live = "before";
    h.view.status = "status";
    h.c().perform(action::defaultAction, std::nullopt);

    EXPECT_TRUE(h.poster.posted.empty());
    EXPECT_TRUE(h.poster.dockRequests.empty());
    EXPECT_EQ(h.view.live, "before");
    EXPECT_EQ(h.view.status, "status");
    EXPECT_EQ(h.c().state().lastAction, "—");
}

TEST_F(ControllerActionsTest, IndexBeyondTheCatalogueBehavesLikeDefault) {
    h.view.live = "before";
    h.view.status = "status";
    h.c().perform(15, std::nullopt);
    h.c().perform(1000, std::nullopt);
    h.c().perform(-1, std::nullopt);

    EXPECT_TRUE(h.poster.posted.empty());
    EXPECT_TRUE(h.poster.dockRequests.empty());
    EXPECT_EQ(h.view.live, "before");
    EXPECT_EQ(h.view.status, "status");
    EXPECT_EQ(h.c().state().lastAction, "—");
}

TEST_F(ControllerActionsTest, SingleClicksPostDownThenUpWithClickStateOne) {
    h.c().perform(action::left, std::nullopt);
    h.c().perform(action::right, std::nullopt);
    h.c().perform(action::middle, std::nullopt);

    EXPECT_EQ(h.poster.mouseEvents(), (std::vector<MouseButtonEvent>{
                                          mouse(event::leftMouseDown, MouseButton::left, 1),
                                          mouse(event::leftMouseUp, MouseButton::left, 1),
                                          mouse(event::rightMouseDown, MouseButton::right, 1),
                                          mouse(event::rightMouseUp, MouseButton::right, 1),
                                          mouse(event::otherMouseDown, MouseButton::centre, 1),
                                          mouse(event::otherMouseUp, MouseButton::centre, 1),
                                      }));
    EXPECT_EQ(h.c().state().lastAction, "—");
}

TEST_F(ControllerActionsTest, DoubleClickPostsFourLeftEventsBackToBack) {
    h.c().perform(action::doubleClick, std::nullopt);

    EXPECT_EQ(h.poster.mouseEvents(), (std::vector<MouseButtonEvent>{
                                          mouse(event::leftMouseDown, MouseButton::left, 1),
                                          mouse(event::leftMouseUp, MouseButton::left, 1),
                                          mouse(event::leftMouseDown, MouseButton::left, 2),
                                          mouse(event::leftMouseUp, MouseButton::left, 2),
                                      }));
    EXPECT_EQ(h.queue.pending(), 0U);
}

TEST_F(ControllerActionsTest, RedoPostsKeySixWithCommandAndShiftOnDownAndUp) {
    h.c().perform(action::redo, std::nullopt);

    EXPECT_EQ(h.poster.keyEvents(),
              (std::vector<KeyEvent>{key(6, true, 0x120000), key(6, false, 0x120000)}));
}

TEST_F(ControllerActionsTest, EditingAndNavigationKeysUseCommand) {
    const std::pair<ActionIndex, std::uint16_t> table[] = {
        {action::copy, 8}, {action::paste, 9}, {action::cut, 7},
        {action::undo, 6}, {action::back, 33}, {action::forward, 30},
    };
    for (const auto& [action, keyCode] : table) {
        h.poster.posted.clear();
        h.c().perform(action, std::nullopt);
        EXPECT_EQ(h.poster.keyEvents(), (std::vector<KeyEvent>{key(keyCode, true, 0x100000),
                                                               key(keyCode, false, 0x100000)}))
            << "action " << action;
    }
}

TEST_F(ControllerActionsTest, CustomActionWithoutShortcutPostsNothingAndSaysSo) {
    h.view.live = "before";
    h.c().perform(action::custom, std::nullopt);

    EXPECT_TRUE(h.poster.posted.empty());
    EXPECT_EQ(h.view.status, "shortcut.missing");
    EXPECT_EQ(h.c().state().lastAction, "—");
    EXPECT_EQ(h.view.live, "before");
}

TEST_F(ControllerActionsTest, CustomActionWithInvalidShortcutPostsNothingAndSaysSo) {
    const SavedShortcut unstorable = SavedShortcut::decoded(200, 0x100000, "X");
    h.c().perform(action::custom, unstorable);

    EXPECT_TRUE(h.poster.posted.empty());
    EXPECT_EQ(h.view.status, "shortcut.missing");
}

TEST_F(ControllerActionsTest, CustomActionSendsTheShortcutAndShowsItsLabel) {
    h.c().perform(action::custom, SavedShortcut(40, 0x120000, "⇧⌘K"));

    EXPECT_EQ(h.poster.keyEvents(),
              (std::vector<KeyEvent>{key(40, true, 0x120000), key(40, false, 0x120000)}));
    EXPECT_EQ(h.c().state().lastAction, "· ⇧⌘K");
    EXPECT_EQ(h.view.live, "0 | — | · ⇧⌘K");
}

TEST_F(ControllerActionsTest, ShowDesktopAndMissionControlNotifyTheDock) {
    h.c().perform(action::showDesktop, std::nullopt);
    h.c().perform(action::missionControl, std::nullopt);

    EXPECT_EQ(h.poster.dockRequests, (std::vector<bool>{true, false}));
    EXPECT_TRUE(h.poster.posted.empty());
    EXPECT_EQ(h.c().state().lastAction, "action.sent");
    EXPECT_EQ(h.view.live, "0 | — | action.sent");
}

TEST_F(ControllerActionsTest, MissingDockCallIsReportedWithItsCodeAndTriedAgain) {
    h.poster.dockResult = -1;
    h.c().perform(action::missionControl, std::nullopt);

    EXPECT_EQ(h.c().state().lastAction, "failed -1");
    EXPECT_EQ(h.view.status, "Mission Control failed -1");
    EXPECT_EQ(h.view.live, "0 | — | failed -1");
    h.c().perform(action::missionControl, std::nullopt);
    EXPECT_EQ(h.poster.dockRequests.size(), 2U);
}

TEST_F(ControllerActionsTest, TestButtonShowsTheDesktop) {
    h.c().testDesktop();
    EXPECT_EQ(h.poster.dockRequests, (std::vector<bool>{true}));
}

TEST_F(ControllerActionsTest, PostedEventsCarryTheMarkerAndTheTapLetsThemPass) {
    h.launchAndSwitchOn();
    h.assign(1, action::right);
    h.rest(2);
    h.c().perform(action::left, std::nullopt);
    h.c().perform(action::copy, std::nullopt);
    ASSERT_EQ(h.poster.mouseEvents().size(), 2U);
    for (const MouseButtonEvent& posted : h.poster.mouseEvents()) {
        EXPECT_EQ(posted.userData, marker);
        // The marker travels in the event's source user data, field 42.
        FakeTapEvent arriving(posted.type, static_cast<std::int64_t>(posted.button), mouseSender);
        arriving.fields.at(42) = posted.userData;
        EXPECT_EQ(h.send(arriving), EventDisposition::pass);
        EXPECT_EQ(arriving.changes, 0);
    }
    ASSERT_EQ(h.poster.keyEvents().size(), 2U);
    for (const KeyEvent& posted : h.poster.keyEvents()) {
        EXPECT_EQ(posted.userData, marker);
    }
    EXPECT_TRUE(h.c().state().presses.empty());
}

}  // namespace
}  // namespace tactora::testing
