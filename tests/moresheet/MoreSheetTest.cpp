#include "core/moresheet/MoreSheet.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "app/ControllerHarness.h"
#include "core/moresheet/MoreSheetRows.h"
#include "core/profiles/ProfileStore.h"

namespace tactora::testing {
namespace {

constexpr std::uint16_t keyK = 40;
constexpr std::uint64_t command = 0x100000;

std::int64_t tag(MoreGestureSlot slot) {
    return static_cast<std::int64_t>(moreslot::index(slot));
}

KeyPress commandK() {
    return {.keyCode = keyK,
            .modifierFlags = command,
            .isRepeat = false,
            .charactersIgnoringModifiers = "k",
            .inDialogWindow = true};
}

class MoreSheetTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        sheet().setMappingChanged([this] { ++mappingChanges; });
    }

    MoreSheet& sheet() { return h.a().moreSheet(); }
    ProfileStore& store() { return h.c().profiles(); }
    const MoreGestureMap& stored() { return store().current().moreGestures; }

    // The row of `slot` in what the view shows now.
    MoreSheetRow shownRow(MoreGestureSlot slot) {
        EXPECT_TRUE(h.moreSheet.shown.has_value());
        if (h.moreSheet.shown) {
            for (const MoreSheetSection& section : h.moreSheet.shown->sections) {
                for (const MoreSheetRow& row : section.rows) {
                    if (row.slot == tag(slot)) {
                        return row;
                    }
                }
            }
        }
        ADD_FAILURE() << "no row for " << moreslot::name(slot);
        return {};
    }

    // What a later launch finds in the preferences.
    MoreGestureMap reloaded() {
        const ProfileStore later(h.defaults, "Default");
        return later.current().moreGestures;
    }

    ControllerHarness h;
    int mappingChanges = 0;
};

TEST_F(MoreSheetTest, NothingIsShownUntilTheButtonOpensIt) {
    store().setMoreAction(action::copy, MoreGestureSlot::tapLeft);
    h.c().refresh();
    EXPECT_EQ(h.moreSheet.shows, 0);
    EXPECT_FALSE(sheet().isOpen());

    sheet().open();

    EXPECT_TRUE(sheet().isOpen());
    EXPECT_EQ(h.moreSheet.shows, 1);
    EXPECT_EQ(*h.moreSheet.shown, moresheet::moreSheetContent(stored()));
    EXPECT_EQ(shownRow(MoreGestureSlot::tapLeft).action, action::copy);
}

TEST_F(MoreSheetTest, AChosenActionIsStoredAtOnceAndShown) {
    sheet().open();
    const MoreGestureSlot swipe = moreslot::forSwipe(3, SwipeDirection::up);

    sheet().changed(tag(swipe), action::missionControl);

    EXPECT_EQ(stored().action(swipe), action::missionControl);
    EXPECT_EQ(reloaded().action(swipe), action::missionControl);
    EXPECT_EQ(shownRow(swipe).action, action::missionControl);
    EXPECT_EQ(mappingChanges, 1);
    // No other slot changed.
    MoreGestureMap expected;
    expected.actions[moreslot::index(swipe)] = action::missionControl;
    EXPECT_EQ(stored(), expected);
}

TEST_F(MoreSheetTest, ChoosingTheDefaultAgainTurnsTheGestureOff) {
    sheet().open();
    sheet().changed(tag(MoreGestureSlot::tipTapRight), action::undo);
    sheet().changed(tag(MoreGestureSlot::tipTapRight), action::defaultAction);

    EXPECT_FALSE(stored().isMapped(MoreGestureSlot::tipTapRight));
    EXPECT_TRUE(reloaded().isDefault());
    EXPECT_EQ(mappingChanges, 2);
}

TEST_F(MoreSheetTest, ChoosingTheActionItHasStoresNothing) {
    sheet().open();
    sheet().changed(tag(MoreGestureSlot::tapRight), action::defaultAction);

    EXPECT_EQ(mappingChanges, 0);
    EXPECT_EQ(h.moreSheet.shows, 2);
}

TEST_F(MoreSheetTest, TheCustomActionWithoutAShortcutRecordsOneAndStoresBoth) {
    sheet().open();
    h.dialogs.keys = {commandK()};
    h.dialogs.save = true;

    sheet().changed(tag(MoreGestureSlot::tapTop), action::custom);

    ASSERT_TRUE(h.dialogs.recordingTexts.has_value());
    EXPECT_EQ(*h.dialogs.recordingTexts,
              (RecordingDialogTexts{"record.title", "record.help", "profile.save", "cancel",
                                    "record.wait"}));
    EXPECT_EQ(stored().action(MoreGestureSlot::tapTop), action::custom);
    EXPECT_EQ(stored().shortcut(MoreGestureSlot::tapTop), SavedShortcut(keyK, command, "⌘K"));
    EXPECT_EQ(reloaded().shortcut(MoreGestureSlot::tapTop), SavedShortcut(keyK, command, "⌘K"));
    const MoreSheetRow row = shownRow(MoreGestureSlot::tapTop);
    EXPECT_EQ(row.action, action::custom);
    EXPECT_EQ(row.record,
              (RecordButtonState{.enabled = true, .title = "⌘K", .toolTip = "record.button"}));
    EXPECT_EQ(mappingChanges, 1);
}

TEST_F(MoreSheetTest, ACancelledRecordingStoresNothingAndPutsThePopUpBack) {
    sheet().changed(tag(MoreGestureSlot::tipTapLeft), action::paste);
    sheet().open();
    const int shows = h.moreSheet.shows;
    h.dialogs.keys = {commandK()};
    h.dialogs.save = false;

    sheet().changed(tag(MoreGestureSlot::tipTapLeft), action::custom);

    EXPECT_EQ(stored().action(MoreGestureSlot::tipTapLeft), action::paste);
    EXPECT_FALSE(stored().shortcut(MoreGestureSlot::tipTapLeft).has_value());
    EXPECT_EQ(h.moreSheet.shows, shows + 1);
    EXPECT_EQ(shownRow(MoreGestureSlot::tipTapLeft).action, action::paste);
}

TEST_F(MoreSheetTest, TheCustomActionOfASlotThatKeptItsShortcutNeedsNoRecording) {
    store().setMoreShortcut(SavedShortcut(keyK, command, "⌘K"), MoreGestureSlot::tapHold);
    store().setMoreAction(action::middle, MoreGestureSlot::tapHold);
    sheet().open();
    h.log.clear();

    sheet().changed(tag(MoreGestureSlot::tapHold), action::custom);

    EXPECT_FALSE(h.log.contains("dialogs.recording"));
    EXPECT_EQ(stored().action(MoreGestureSlot::tapHold), action::custom);
    EXPECT_EQ(stored().shortcut(MoreGestureSlot::tapHold), SavedShortcut(keyK, command, "⌘K"));
}

TEST_F(MoreSheetTest, ARecordButtonRecordsForItsOwnSlot) {
    sheet().open();
    h.dialogs.keys = {commandK()};
    const MoreGestureSlot swipe = moreslot::forSwipe(1, SwipeDirection::right);

    sheet().recordShortcut(tag(swipe));

    EXPECT_EQ(stored().action(swipe), action::custom);
    EXPECT_EQ(stored().shortcut(swipe), SavedShortcut(keyK, command, "⌘K"));
    EXPECT_EQ(shownRow(swipe).record.title, "⌘K");
    for (std::size_t i = 0; i < moreslot::count; ++i) {
        if (i != moreslot::index(swipe)) {
            EXPECT_FALSE(stored().shortcuts[i].has_value()) << i;
        }
    }
}

TEST_F(MoreSheetTest, ATouchBegunBeforeTheRecordingNeverCompletesAfterIt) {
    h.assign(4, action::showDesktop);
    h.frame(1);
    h.dialogs.keys = {commandK()};
    h.dialogs.whileOpen = [this] {
        h.queue.advance(0.05);
        h.frame(0);
    };

    sheet().recordShortcut(tag(MoreGestureSlot::tapLeft));
    h.queue.advance(Controller::tapDelay + 0.1);

    EXPECT_EQ(h.performedCount(), 0U);
}

TEST_F(MoreSheetTest, ATapMadeWhileTheDialogIsOpenNeverCompletes) {
    h.assign(4, action::showDesktop);
    h.dialogs.keys = {commandK()};
    h.dialogs.whileOpen = [this] { h.tap(1, 0.05); };

    sheet().recordShortcut(tag(MoreGestureSlot::tapLeft));
    h.queue.advance(Controller::tapDelay + 0.1);

    EXPECT_EQ(h.performedCount(), 0U);
    // Taps after it act again.
    h.tap(1, 0.05);
    h.queue.advance(Controller::tapDelay + 0.1);
    EXPECT_EQ(h.performedCount(), 1U);
}

TEST_F(MoreSheetTest, AShortcutRecordedWhileAnotherProfileBecameActiveIsDropped) {
    const Uuid first = store().activeID();
    store().add("Second", false);
    const Uuid second = store().activeID();
    h.c().switchProfileAutomatically(first);
    sheet().open();
    h.dialogs.keys = {commandK()};
    h.dialogs.whileOpen = [this, second] { h.c().switchProfileAutomatically(second); };

    sheet().recordShortcut(tag(MoreGestureSlot::tapLeft));

    for (const WorkProfile& profile : store().profiles()) {
        EXPECT_TRUE(profile.moreGestures.isDefault()) << profile.name;
    }
    EXPECT_EQ(mappingChanges, 0);
    EXPECT_EQ(h.moreSheet.shown->sections, moresheet::moreSheetContent(MoreGestureMap()).sections);
}

TEST_F(MoreSheetTest, AnUnknownSlotOrActionStoresNothingAndShowsTheSheetAsItWas) {
    sheet().open();
    const int shows = h.moreSheet.shows;

    sheet().changed(static_cast<std::int64_t>(moreslot::count), action::copy);
    sheet().changed(-1, action::copy);
    sheet().changed(tag(MoreGestureSlot::tapLeft), action::allCount);
    sheet().changed(tag(MoreGestureSlot::tapLeft), -1);
    sheet().recordShortcut(static_cast<std::int64_t>(moreslot::count));

    EXPECT_TRUE(stored().isDefault());
    EXPECT_FALSE(h.log.contains("dialogs.recording"));
    EXPECT_EQ(mappingChanges, 0);
    EXPECT_EQ(h.moreSheet.shows, shows + 4);
    EXPECT_EQ(shownRow(MoreGestureSlot::tapLeft).action, action::defaultAction);
}

TEST_F(MoreSheetTest, TheDepthGoesToTheSlidersNearestStopAndIsStored) {
    sheet().open();

    sheet().setTopBand(0.33);
    EXPECT_NEAR(stored().topBand, 0.35, 1e-9);
    EXPECT_NEAR(reloaded().topBand, 0.35, 1e-9);
    EXPECT_NEAR(h.moreSheet.shown->topBand.value, 0.35, 1e-9);

    sheet().setTopBand(0.9);
    EXPECT_NEAR(stored().topBand, MoreGestureMap::largestTopBand, 1e-9);
    sheet().setTopBand(0.01);
    EXPECT_NEAR(stored().topBand, MoreGestureMap::smallestTopBand, 1e-9);
    EXPECT_EQ(mappingChanges, 3);
}

TEST_F(MoreSheetTest, TheSliderOnTheStopItHasOrNotANumberStoresNothingButComesBackToIt) {
    sheet().open();
    const int shows = h.moreSheet.shows;

    sheet().setTopBand(MoreGestureMap::defaultTopBand + 0.01);
    sheet().setTopBand(std::numeric_limits<double>::quiet_NaN());

    EXPECT_DOUBLE_EQ(stored().topBand, MoreGestureMap::defaultTopBand);
    EXPECT_EQ(mappingChanges, 0);
    EXPECT_EQ(h.moreSheet.shows, shows + 2);
    EXPECT_DOUBLE_EQ(h.moreSheet.shown->topBand.value, MoreGestureMap::defaultTopBand);
}

TEST_F(MoreSheetTest, EditsChangeTheActiveProfileOnly) {
    const Uuid first = store().activeID();
    store().add("Second", false);
    sheet().open();

    sheet().changed(tag(MoreGestureSlot::tapRight), action::back);
    sheet().setTopBand(0.45);

    for (const WorkProfile& profile : store().profiles()) {
        EXPECT_EQ(profile.moreGestures.isDefault(), profile.id == first) << profile.name;
    }
}

TEST_F(MoreSheetTest, SwitchingProfilesWhileOpenShowsTheNewProfilesGestures) {
    const Uuid first = store().activeID();
    store().add("Second", false);
    sheet().changed(tag(MoreGestureSlot::tapHold), action::middle);
    h.c().switchProfileAutomatically(first);
    sheet().open();
    EXPECT_EQ(shownRow(MoreGestureSlot::tapHold).action, action::defaultAction);

    h.c().switchProfileAutomatically(store().profiles().back().id);

    EXPECT_EQ(shownRow(MoreGestureSlot::tapHold).action, action::middle);
    // Edits now go to the profile shown.
    sheet().changed(tag(MoreGestureSlot::tapLeft), action::right);
    EXPECT_EQ(store().profiles().back().moreGestures.action(MoreGestureSlot::tapLeft),
              action::right);
    EXPECT_TRUE(store().profiles().front().moreGestures.isDefault());
}

TEST_F(MoreSheetTest, AProfileMadeActiveWithoutASelectionIsShownAtTheNextRefresh) {
    store().setMoreAction(action::cut, MoreGestureSlot::tipTapLeft);
    sheet().open();
    const int shows = h.moreSheet.shows;
    h.c().refresh();
    EXPECT_EQ(h.moreSheet.shows, shows);

    store().add("Fresh", false);
    h.c().refresh();

    EXPECT_EQ(h.moreSheet.shows, shows + 1);
    EXPECT_EQ(shownRow(MoreGestureSlot::tipTapLeft).action, action::defaultAction);
}

TEST_F(MoreSheetTest, OnceClosedASwitchOrRefreshShowsNothing) {
    const Uuid first = store().activeID();
    store().add("Second", false);
    sheet().open();
    sheet().closed();
    const int shows = h.moreSheet.shows;

    h.c().switchProfileAutomatically(first);
    h.c().refresh();
    sheet().changed(tag(MoreGestureSlot::tapLeft), action::copy);

    EXPECT_FALSE(sheet().isOpen());
    EXPECT_EQ(h.moreSheet.shows, shows);
    EXPECT_EQ(stored().action(MoreGestureSlot::tapLeft), action::copy);
}

TEST_F(MoreSheetTest, MappingTheHoldForTheFirstTimeOffersTheMiddleClickRightAfterTheDefault) {
    sheet().open();
    const MoreSheetRow hold = shownRow(MoreGestureSlot::tapHold);
    ASSERT_GE(hold.actions.size(), 2U);
    EXPECT_EQ(hold.action, action::defaultAction);
    EXPECT_EQ(hold.actions[0].action, action::defaultAction);
    EXPECT_EQ(hold.actions[1].action, action::middle);

    sheet().changed(tag(MoreGestureSlot::tapHold), hold.actions[1].action);

    EXPECT_EQ(stored().action(MoreGestureSlot::tapHold), action::middle);
    EXPECT_EQ(reloaded().action(MoreGestureSlot::tapHold), action::middle);
}

}  // namespace
}  // namespace tactora::testing
