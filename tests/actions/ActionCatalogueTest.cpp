#include "core/actions/ActionCatalogue.h"

#include <gtest/gtest.h>

#include "core/actions/MouseEventType.h"

namespace tactora {
namespace {

TEST(ActionCatalogueTest, ClickActionsNameTheirButtonAndCount) {
    EXPECT_EQ(catalogue::buttonClicks(action::left), (ButtonClicks{MouseButton::left, 1}));
    EXPECT_EQ(catalogue::buttonClicks(action::right), (ButtonClicks{MouseButton::right, 1}));
    EXPECT_EQ(catalogue::buttonClicks(action::middle), (ButtonClicks{MouseButton::centre, 1}));
    EXPECT_EQ(catalogue::buttonClicks(action::doubleClick), (ButtonClicks{MouseButton::left, 2}));
    EXPECT_EQ(catalogue::buttonClicks(action::copy), std::nullopt);
}

TEST(ActionCatalogueTest, KeyActionsAreIndicesFiveToEleven) {
    for (ActionIndex action = -1; action <= 16; ++action) {
        EXPECT_EQ(catalogue::keyStroke(action).has_value(), action >= 5 && action <= 11) << action;
    }
    EXPECT_EQ(catalogue::keyStroke(action::redo), (KeyStroke{6, 0x120000}));
    EXPECT_EQ(catalogue::keyStroke(action::back), (KeyStroke{33, 0x100000}));
}

TEST(ActionCatalogueTest, OnlySingleClicksRetargetAPress) {
    EXPECT_EQ(catalogue::pressTarget(action::left), MouseButton::left);
    EXPECT_EQ(catalogue::pressTarget(action::right), MouseButton::right);
    EXPECT_EQ(catalogue::pressTarget(action::middle), MouseButton::centre);
    EXPECT_EQ(catalogue::pressTarget(action::doubleClick), std::nullopt);
    EXPECT_EQ(catalogue::pressTarget(action::custom), std::nullopt);
}

TEST(ActionCatalogueTest, DockActions) {
    EXPECT_EQ(catalogue::dockShowsDesktop(action::showDesktop), true);
    EXPECT_EQ(catalogue::dockShowsDesktop(action::missionControl), false);
    EXPECT_EQ(catalogue::dockShowsDesktop(action::custom), std::nullopt);
}

TEST(MouseEventTypeTest, LeftAndRightHaveTheirOwnTypesOtherButtonsShare) {
    EXPECT_EQ(mouseEventType(MouseButton::left, MouseMotion::down), 1U);
    EXPECT_EQ(mouseEventType(MouseButton::left, MouseMotion::up), 2U);
    EXPECT_EQ(mouseEventType(MouseButton::right, MouseMotion::down), 3U);
    EXPECT_EQ(mouseEventType(MouseButton::right, MouseMotion::up), 4U);
    EXPECT_EQ(mouseEventType(MouseButton::left, MouseMotion::drag), 6U);
    EXPECT_EQ(mouseEventType(MouseButton::right, MouseMotion::drag), 7U);
    EXPECT_EQ(mouseEventType(MouseButton::centre, MouseMotion::down), 25U);
    EXPECT_EQ(mouseEventType(MouseButton::centre, MouseMotion::up), 26U);
    EXPECT_EQ(mouseEventType(MouseButton::centre, MouseMotion::drag), 27U);
}

TEST(EventTypesTest, TheTapMaskIsComputedFromItsTypes) {
    EXPECT_EQ(event::tapMask, 0x4000DEU);
    EXPECT_EQ(event::maskOf({64, 1}), 0x2U);
}

}  // namespace
}  // namespace tactora
