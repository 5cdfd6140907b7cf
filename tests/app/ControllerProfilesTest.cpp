#include <gtest/gtest.h>

#include <string>

#include "app/ControllerHarness.h"

namespace tactora::testing {
namespace {

class ControllerProfilesTest : public ::testing::Test {
  protected:
    void SetUp() override { h.launchAndSwitchOn(); }

    void choose(std::size_t slot, ActionIndex action) {
        h.view.actionChoice.at(slot) = action;
        h.c().changed(static_cast<std::int64_t>(slot));
    }

    const WorkProfile& current() { return h.c().profiles().current(); }

    ControllerHarness h;
};

TEST_F(ControllerProfilesTest, ProfileMenuListsEveryProfileAndSelectsTheActiveOne) {
    h.c().profiles().add("Second", false);
    h.c().refreshProfileUI();

    ASSERT_EQ(h.view.profileItems.size(), 2U);
    EXPECT_EQ(h.view.profileItems[0].title, "Default");
    EXPECT_EQ(h.view.profileItems[1],
              (ProfileMenuItem{"Second", h.c().profiles().activeID().text()}));
    EXPECT_EQ(h.view.selectedProfile, 1U);
}

TEST_F(ControllerProfilesTest, RecordButtonsShowTheShortcutLabelOrTheirOwnTitle) {
    h.c().profiles().setShortcut(SavedShortcut(40, 0x100000, "⌘K"), 3);
    h.c().refreshProfileUI();

    EXPECT_EQ(*h.view.recordButtons.at(3), (RecordButtonState{true, "⌘K", "record.button"}));
    EXPECT_EQ(*h.view.recordButtons.at(2),
              (RecordButtonState{false, "record.button", "record.button"}));
    EXPECT_EQ(h.view.shownActions.at(3), action::custom);
}

TEST_F(ControllerProfilesTest, CustomActionWithoutShortcutLeavesTheMappingAndStartsRecording) {
    h.dialogs.save = false;
    choose(2, action::custom);

    EXPECT_EQ(h.log.count("dialogs.recording"), 1);
    EXPECT_EQ(h.c().mapping().at(2), action::defaultAction);
    EXPECT_EQ(h.view.shownActions.at(2), action::defaultAction);
}

TEST_F(ControllerProfilesTest, CustomActionWithAShortcutIsStoredAtOnce) {
    h.c().profiles().setShortcut(SavedShortcut(40, 0x100000, "⌘K"), 2);
    h.c().profiles().setAction(action::copy, 2);
    choose(2, action::custom);

    EXPECT_FALSE(h.log.contains("dialogs.recording"));
    EXPECT_EQ(h.c().mapping().at(2), action::custom);
    EXPECT_EQ(current().shortcuts.at(2), SavedShortcut(40, 0x100000, "⌘K"));
    EXPECT_TRUE(h.view.recordButtons.at(2)->enabled);
}

TEST_F(ControllerProfilesTest, AnyOtherActionDisablesTheRecordButton) {
    h.c().profiles().setShortcut(SavedShortcut(40, 0x100000, "⌘K"), 2);
    h.c().refreshProfileUI();
    ASSERT_TRUE(h.view.recordButtons.at(2)->enabled);
    choose(2, action::paste);

    EXPECT_EQ(h.c().mapping().at(2), action::paste);
    EXPECT_FALSE(h.view.recordButtons.at(2)->enabled);
}

TEST_F(ControllerProfilesTest, NameOfOnlySpacesCreatesNothing) {
    h.dialogs.name = " \t\u00a0\u3000\n ";
    h.c().nameProfile(NamingMode::create);

    EXPECT_EQ(h.c().profiles().profiles().size(), 1U);
}

TEST_F(ControllerProfilesTest, NameOfSeventyCharactersIsStoredAsItsFirstSixty) {
    const std::string seventy(70, 'n');
    h.dialogs.name = "  " + seventy + "\n";
    h.c().nameProfile(NamingMode::create);

    ASSERT_EQ(h.c().profiles().profiles().size(), 2U);
    EXPECT_EQ(current().name, std::string(60, 'n'));
}

TEST_F(ControllerProfilesTest, DuplicateOpensWithTheCurrentNameAndCopiesTheSlots) {
    h.c().profiles().setShortcut(SavedShortcut(40, 0x100000, "⌘K"), 4);
    h.c().profiles().setAction(action::right, 1);
    h.dialogs.name = "Copy";
    h.c().nameProfile(NamingMode::duplicate);

    EXPECT_EQ(h.dialogs.namingTexts->message, "profile.duplicate");
    EXPECT_EQ(h.dialogs.namingTexts->initialText, "Default");
    ASSERT_EQ(h.c().profiles().profiles().size(), 2U);
    const WorkProfile& original = h.c().profiles().profiles().front();
    EXPECT_EQ(current().name, "Copy");
    EXPECT_NE(current().id, original.id);
    EXPECT_EQ(current().actions, original.actions);
    EXPECT_EQ(current().shortcuts, original.shortcuts);
    EXPECT_EQ(h.view.selectedProfile, 1U);
}

TEST_F(ControllerProfilesTest, NewOpensEmptyAndTheNewProfileHasEveryActionDefault) {
    h.c().profiles().setAction(action::right, 1);
    h.dialogs.name = "Fresh";
    h.c().nameProfile(NamingMode::create);

    EXPECT_EQ(*h.dialogs.namingTexts,
              (NamingDialogTexts{"profile.new", "profile.name", "profile.save", "cancel", ""}));
    EXPECT_EQ(current().name, "Fresh");
    EXPECT_EQ(current().actions, std::vector<ActionIndex>(8, action::defaultAction));
}

TEST_F(ControllerProfilesTest, RenameOpensWithTheCurrentNameAndRenames) {
    h.dialogs.name = "Work";
    h.c().nameProfile(NamingMode::rename);

    EXPECT_EQ(h.dialogs.namingTexts->message, "profile.rename");
    EXPECT_EQ(h.dialogs.namingTexts->initialText, "Default");
    EXPECT_EQ(h.c().profiles().profiles().size(), 1U);
    EXPECT_EQ(current().name, "Work");
    EXPECT_EQ(h.view.profileItems.front().title, "Work");
}

TEST_F(ControllerProfilesTest, CancelLeavesTheStoreButPendingActionsAndPressesAreGone) {
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    const std::int64_t before = h.c().state().actionGeneration;
    const std::vector<WorkProfile> profiles = h.c().profiles().profiles();
    h.dialogs.name.reset();
    h.c().nameProfile(NamingMode::create);

    EXPECT_EQ(h.c().profiles().profiles(), profiles);
    EXPECT_GT(h.c().state().actionGeneration, before);
    EXPECT_TRUE(h.c().state().presses.empty());
    EXPECT_EQ(h.poster.mouseEvents().size(), 1U);
}

TEST_F(ControllerProfilesTest, SelectingShowsADashForTheGestureAndNothingForTheAction) {
    h.c().profiles().add("Second", false);
    const Uuid second = h.c().profiles().activeID();
    const Uuid first = h.c().profiles().profiles().front().id;
    h.c().profiles().select(first);
    h.c().perform(action::showDesktop, std::nullopt);
    h.tap(1);
    ASSERT_EQ(h.c().state().lastGesture, "tap 1");

    h.view.profileChoice = second.text();
    h.c().selectProfile();

    EXPECT_EQ(h.c().profiles().activeID(), second);
    EXPECT_EQ(h.c().state().lastGesture, "—");
    EXPECT_EQ(h.c().state().lastAction, "");
    EXPECT_EQ(h.view.live, "0 | — | ");
    EXPECT_EQ(h.view.selectedProfile, 1U);
}

TEST_F(ControllerProfilesTest, SelectingTheActiveProfileGoesThroughTheSameSteps) {
    const std::int64_t before = h.c().state().actionGeneration;
    h.view.profileChoice = h.c().profiles().activeID().text();
    h.c().selectProfile();

    EXPECT_EQ(h.c().state().actionGeneration, before + 1);
    EXPECT_EQ(h.c().state().lastAction, "");
}

TEST_F(ControllerProfilesTest, UnparsableSelectionIsIgnored) {
    const std::int64_t before = h.c().state().actionGeneration;
    h.view.profileChoice = "not-a-uuid";
    h.c().selectProfile();

    EXPECT_EQ(h.c().state().actionGeneration, before);
    EXPECT_EQ(h.c().state().lastAction, "—");
}

}  // namespace
}  // namespace tactora::testing
