// The further actions in the More Gestures sheet: offered, chosen with their values and shown as
// the gesture rows offer, choose and show them.
#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/actions/ExtraActionMenu.h"
#include "core/app/SettingsWindowTexts.h"
#include "core/moresheet/MoreSheet.h"
#include "core/moresheet/MoreSheetRows.h"
#include "moreactions/ExtraActionsHarness.h"

namespace tactora::testing {
namespace {

std::int64_t tag(MoreGestureSlot slot) {
    return static_cast<std::int64_t>(moreslot::index(slot));
}

ActionIndex indexOf(ExtraAction extra) {
    return action::index(extra);
}

ProcessOutcome listed(const std::string& output) {
    ProcessOutcome outcome;
    outcome.output = output;
    return outcome;
}

class MoreSheetExtrasTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        sheet().setMappingChanged([this] { ++mappingChanges; });
        sheet().open();
    }

    MoreSheet& sheet() { return h.a().moreSheet(); }
    ProfileStore& store() { return h.c().profiles(); }
    const MoreGestureMap& stored() { return store().current().moreGestures; }
    MoreGestureMap reloaded() { return ProfileStore(h.defaults, "Default").current().moreGestures; }

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

    ExtraActionsHarness h;
    int mappingChanges = 0;
};

TEST_F(MoreSheetExtrasTest, EveryRowOffersTheFurtherActionsInTheGestureRowsGroups) {
    const std::vector<std::vector<ActionMenuEntry>> rowsGroups =
        settingsWindowTexts().extraActionGroups;
    ASSERT_EQ(rowsGroups.size(), 4U);
    ASSERT_TRUE(h.moreSheet.shown);
    for (const MoreSheetSection& section : h.moreSheet.shown->sections) {
        for (const MoreSheetRow& row : section.rows) {
            EXPECT_EQ(row.extraActionGroups, rowsGroups) << row.label;
            EXPECT_EQ(row.actions.size(), static_cast<std::size_t>(action::count)) << row.label;
        }
    }
    // Tap and hold keeps its middle click right after the default.
    const MoreSheetRow hold = shownRow(MoreGestureSlot::tapHold);
    EXPECT_EQ(hold.actions.at(1).action, action::middle);
    EXPECT_EQ(hold.extraActionGroups, rowsGroups);
}

TEST_F(MoreSheetExtrasTest, AnApplicationIsChosenStoredWithItsValueAndShownAsTheRowsShowIt) {
    h.opener.applications.insert("com.apple.Safari");
    h.opener.names["com.apple.Safari"] = "Safari";
    h.picker.application = "com.apple.Safari";

    sheet().changed(tag(MoreGestureSlot::swipe3Up), indexOf(ExtraAction::openApplication));

    ASSERT_EQ(h.picker.panels.size(), 1U);
    EXPECT_EQ(stored().extra(MoreGestureSlot::swipe3Up),
              (SlotExtra{ExtraAction::openApplication, "com.apple.Safari"}));
    EXPECT_EQ(mappingChanges, 1);
    EXPECT_EQ(reloaded(), stored());
    const MoreSheetRow row = shownRow(MoreGestureSlot::swipe3Up);
    EXPECT_EQ(row.action, indexOf(ExtraAction::openApplication));
    EXPECT_EQ(row.record, h.extras().rowButton(ExtraAction::openApplication, "com.apple.Safari"));
    EXPECT_EQ(row.record.title, "Safari");
    EXPECT_FALSE(row.record.enabled);
}

TEST_F(MoreSheetExtrasTest, CancellingThePanelKeepsTheSlotsActionAndPutsThePopUpBack) {
    store().setMoreAction(action::copy, MoreGestureSlot::tapLeft);
    sheet().open();

    sheet().changed(tag(MoreGestureSlot::tapLeft), indexOf(ExtraAction::openFile));

    ASSERT_EQ(h.picker.panels.size(), 1U);
    EXPECT_EQ(stored().action(MoreGestureSlot::tapLeft), action::copy);
    EXPECT_EQ(stored().extra(MoreGestureSlot::tapLeft), std::nullopt);
    EXPECT_EQ(mappingChanges, 0);
    EXPECT_EQ(shownRow(MoreGestureSlot::tapLeft).action, action::copy);
}

TEST_F(MoreSheetExtrasTest, AnActionThatNeedsNoValueIsStoredAtOnce) {
    sheet().changed(tag(MoreGestureSlot::tapHold), indexOf(ExtraAction::commandClick));

    EXPECT_TRUE(h.picker.panels.empty());
    EXPECT_EQ(stored().action(MoreGestureSlot::tapHold), indexOf(ExtraAction::commandClick));
    EXPECT_EQ(shownRow(MoreGestureSlot::tapHold).action, indexOf(ExtraAction::commandClick));
    EXPECT_EQ(shownRow(MoreGestureSlot::tapHold).record,
              h.extras().rowButton(ExtraAction::commandClick, ""));
    EXPECT_EQ(mappingChanges, 1);
}

TEST_F(MoreSheetExtrasTest, ChoosingTheSlotsOwnActionAgainStartsFromItsValue) {
    h.dialogs.name = "www.apple.com";
    sheet().changed(tag(MoreGestureSlot::tipTapLeft), indexOf(ExtraAction::openAddress));
    ASSERT_TRUE(h.dialogs.namingTexts);
    EXPECT_EQ(h.dialogs.namingTexts->initialText, "");
    EXPECT_EQ(stored().value(MoreGestureSlot::tipTapLeft), "https://www.apple.com");

    h.dialogs.name = "www.apple.com/mac";
    sheet().changed(tag(MoreGestureSlot::tipTapLeft), indexOf(ExtraAction::openAddress));
    EXPECT_EQ(h.dialogs.namingTexts->initialText, "https://www.apple.com");
    EXPECT_EQ(stored().value(MoreGestureSlot::tipTapLeft), "https://www.apple.com/mac");
}

TEST_F(MoreSheetExtrasTest, TheRecordButtonOfASlotWithAFurtherActionChoosesAgain) {
    h.opener.files.insert("/Users/a/one.txt");
    h.opener.files.insert("/Users/a/two.txt");
    h.picker.file = "/Users/a/one.txt";
    sheet().changed(tag(MoreGestureSlot::swipe1Down), indexOf(ExtraAction::openFile));
    h.picker.file = "/Users/a/two.txt";

    sheet().recordShortcut(tag(MoreGestureSlot::swipe1Down));

    EXPECT_EQ(h.picker.panels.size(), 2U);
    EXPECT_FALSE(h.dialogs.recordingTexts.has_value());
    EXPECT_EQ(stored().extra(MoreGestureSlot::swipe1Down),
              (SlotExtra{ExtraAction::openFile, "/Users/a/two.txt"}));
}

TEST_F(MoreSheetExtrasTest, OneOfTheFifteenOrAShortcutTakesTheFurtherActionAway) {
    sheet().changed(tag(MoreGestureSlot::tapRight), indexOf(ExtraAction::mute));
    sheet().changed(tag(MoreGestureSlot::tapRight), action::paste);
    EXPECT_EQ(stored().action(MoreGestureSlot::tapRight), action::paste);
    EXPECT_EQ(shownRow(MoreGestureSlot::tapRight).action, action::paste);
    EXPECT_EQ(shownRow(MoreGestureSlot::tapRight).record.title, "record.button");

    sheet().changed(tag(MoreGestureSlot::tapRight), action::defaultAction);
    EXPECT_FALSE(stored().isMapped(MoreGestureSlot::tapRight));
}

TEST_F(MoreSheetExtrasTest, AShortcutChosenAfterItsListArrivesIsStoredAndItsRowShown) {
    h.picker.listChoice = "Evening";
    sheet().changed(tag(MoreGestureSlot::swipe2Up), indexOf(ExtraAction::runShortcut));
    EXPECT_EQ(h.picker.listsShown, 0);  // the list comes first, in the background
    EXPECT_FALSE(stored().isMapped(MoreGestureSlot::swipe2Up));

    h.processes.finish(listed("Morning Lights\nEvening\n"));
    EXPECT_EQ(stored().extra(MoreGestureSlot::swipe2Up),
              (SlotExtra{ExtraAction::runShortcut, "Evening"}));
    EXPECT_EQ(shownRow(MoreGestureSlot::swipe2Up).record.title, "Evening");
}

TEST_F(MoreSheetExtrasTest, AValueChosenWhileAnotherProfileBecameActiveIsDropped) {
    h.picker.listChoice = "Evening";
    sheet().changed(tag(MoreGestureSlot::swipe2Up), indexOf(ExtraAction::runShortcut));
    const Uuid first = store().activeID();
    store().add("Other", false);
    h.processes.finish(listed("Evening\n"));
    EXPECT_FALSE(stored().isMapped(MoreGestureSlot::swipe2Up));
    store().select(first);
    EXPECT_FALSE(stored().isMapped(MoreGestureSlot::swipe2Up));
}

TEST_F(MoreSheetExtrasTest, AShortcutFoundMissingLaterUpdatesTheOpenSheet) {
    store().setMoreExtra({ExtraAction::runShortcut, "Gone"}, MoreGestureSlot::tapTop);
    sheet().open();
    EXPECT_EQ(shownRow(MoreGestureSlot::tapTop).record.title, "Gone");  // not known yet
    h.processes.finish(listed("Evening\n"));
    EXPECT_EQ(shownRow(MoreGestureSlot::tapTop).record.title, "missing Gone");
}

TEST(MoreSheetWithoutExtrasTest, AFurtherActionStoresNothingWithoutAPerformer) {
    ControllerHarness h;
    h.launchAndSwitchOn();
    h.a().moreSheet().open();
    h.a().moreSheet().changed(tag(MoreGestureSlot::tapLeft), action::index(ExtraAction::mute));
    EXPECT_FALSE(h.c().profiles().current().moreGestures.isMapped(MoreGestureSlot::tapLeft));
    ASSERT_TRUE(h.moreSheet.shown);
    EXPECT_EQ(h.moreSheet.shown->sections.at(0).rows.at(0).action, action::defaultAction);
}

}  // namespace
}  // namespace tactora::testing
