#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <vector>

#include "core/moreactions/ExtraActionCatalogue.h"
#include "core/profiles/ProfileJson.h"
#include "moreactions/ExtraActionsHarness.h"

namespace tactora::testing {
namespace {

class ControllerExtraActionsTest : public ::testing::Test {
  protected:
    void SetUp() override { h.launchAndSwitchOn(); }

    std::optional<SlotExtra> extraAt(std::size_t slot) {
        return h.c().profiles().current().extraAt(slot);
    }

    // What the user does in the window: picks `action` in the pop-up of `slot`.
    void pick(std::int64_t slot, ActionIndex action) {
        h.view.actionChoice.at(static_cast<std::size_t>(slot)) = action;
        h.c().changed(slot);
    }

    ExtraActionsHarness h;
};

ProcessOutcome ended(ProcessEnd end, std::int32_t status = 0) {
    ProcessOutcome outcome;
    outcome.end = end;
    outcome.exitStatus = status;
    return outcome;
}

// `shortcuts list` ended well, having written `output`.
ProcessOutcome listed(const std::string& output) {
    ProcessOutcome outcome;
    outcome.output = output;
    return outcome;
}

std::vector<KeyEvent> keyPress(std::uint16_t keyCode, std::uint64_t flags) {
    return {{.keyCode = keyCode, .down = true, .flags = flags, .userData = marker},
            {.keyCode = keyCode, .down = false, .flags = flags, .userData = marker}};
}

// --- What each action posts or calls ------------------------------------------------------------

TEST_F(ControllerExtraActionsTest, PlayPausePostsThePlayKeyDownThenUpAsTheKeyboardDoes) {
    h.assignExtra(5, ExtraAction::playPause);
    h.tapAndWait(2);

    const std::vector<SystemDefinedEvent> expected = {
        {.subtype = 8, .data1 = 0x100A00, .modifierFlags = 0xA00, .userData = marker},
        {.subtype = 8, .data1 = 0x100B00, .modifierFlags = 0xB00, .userData = marker},
    };
    EXPECT_EQ(h.systemEvents.events, expected);
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerExtraActionsTest, TrackAndVolumeActionsPressTheirOwnMediaKeys) {
    const std::vector<std::pair<ExtraAction, std::int64_t>> keys = {
        {ExtraAction::nextTrack, 17}, {ExtraAction::previousTrack, 18}, {ExtraAction::volumeUp, 0},
        {ExtraAction::volumeDown, 1}, {ExtraAction::mute, 7},
    };
    for (const auto& [extra, key] : keys) {
        h.systemEvents.events.clear();
        h.assignExtra(4, extra);
        h.tapAndWait(1);
        ASSERT_EQ(h.systemEvents.events.size(), 2U) << key;
        EXPECT_EQ(h.systemEvents.events[0].data1, (key << 16) | 0xA00) << key;
        EXPECT_EQ(h.systemEvents.events[1].data1, (key << 16) | 0xB00) << key;
    }
}

TEST_F(ControllerExtraActionsTest, SpacesMoveWithControlArrowsAsARealArrowKeySendsThem) {
    h.assignExtra(5, ExtraAction::spaceLeft);
    h.assignExtra(6, ExtraAction::spaceRight);
    h.tapAndWait(2);
    EXPECT_EQ(h.poster.keyEvents(), keyPress(123, 0xA40000));
    h.poster.posted.clear();
    h.tapAndWait(3);
    EXPECT_EQ(h.poster.keyEvents(), keyPress(124, 0xA40000));
}

TEST_F(ControllerExtraActionsTest, SpotlightLookUpAndNotificationCenterPressTheirShortcuts) {
    const std::vector<std::pair<ExtraAction, KeyStroke>> strokes = {
        {ExtraAction::spotlight, {49, 0x100000}},
        {ExtraAction::lookUp, {2, 0x140000}},
        {ExtraAction::notificationCenter, {45, 0x800000}},
    };
    for (const auto& [extra, stroke] : strokes) {
        h.poster.posted.clear();
        h.assignExtra(7, extra);
        h.tapAndWait(4);
        EXPECT_EQ(h.poster.keyEvents(), keyPress(stroke.keyCode, stroke.flags));
    }
}

TEST_F(ControllerExtraActionsTest, AppExposeAndLaunchpadAskTheDock) {
    h.assignExtra(5, ExtraAction::appExpose);
    h.assignExtra(6, ExtraAction::launchpad);
    h.tapAndWait(2);
    h.tapAndWait(3);
    EXPECT_EQ(
        h.systemEvents.notifications,
        (std::vector<std::string>{"com.apple.expose.front.awake", "com.apple.launchpad.toggle"}));
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerExtraActionsTest, ADockFailureIsReportedWithItsCode) {
    h.systemEvents.dockResult = -1;
    h.assignExtra(5, ExtraAction::appExpose);
    h.tapAndWait(2);
    EXPECT_EQ(h.view.status, "App Exposé failed -1");
}

TEST_F(ControllerExtraActionsTest, ATappedModifierClickClicksTheLeftButtonWithItsModifier) {
    const std::vector<std::pair<ExtraAction, std::uint64_t>> clicks = {
        {ExtraAction::commandClick, 0x100000},
        {ExtraAction::optionClick, 0x80000},
        {ExtraAction::shiftClick, 0x20000},
        {ExtraAction::controlClick, 0x40000},
    };
    for (const auto& [extra, flags] : clicks) {
        h.poster.posted.clear();
        h.assignExtra(5, extra);
        h.tapAndWait(2);
        const std::vector<MouseButtonEvent> expected = {
            {.type = event::leftMouseDown, .clickState = 1, .userData = marker, .flags = flags},
            {.type = event::leftMouseUp, .clickState = 1, .userData = marker, .flags = flags},
        };
        EXPECT_EQ(h.poster.mouseEvents(), expected) << flags;
    }
}

TEST_F(ControllerExtraActionsTest, OpeningAnInstalledApplicationAsksForItByBundleID) {
    h.opener.applications.insert("com.apple.Safari");
    h.assignExtra(5, ExtraAction::openApplication, "com.apple.Safari");
    h.tapAndWait(2);
    EXPECT_EQ(h.opener.opened,
              (std::vector<FakeOpener::Opened>{{"application", "com.apple.Safari"}}));
    h.opener.answer(true);
    EXPECT_EQ(h.view.status.find("not opened"), std::string::npos);
}

TEST_F(ControllerExtraActionsTest, AnApplicationNotInstalledIsReportedAndNothingOpens) {
    h.assignExtra(5, ExtraAction::openApplication, "com.example.Gone");
    h.tapAndWait(2);
    EXPECT_TRUE(h.opener.opened.empty());
    EXPECT_EQ(h.view.status, "no app com.example.Gone");
}

TEST_F(ControllerExtraActionsTest, AnOpenThatFailsLaterIsReportedByName) {
    h.opener.applications.insert("com.apple.Safari");
    h.opener.names["com.apple.Safari"] = "Safari";
    h.assignExtra(5, ExtraAction::openApplication, "com.apple.Safari");
    h.tapAndWait(2);
    h.opener.answer(false);
    EXPECT_EQ(h.view.status, "not opened Safari");
}

TEST_F(ControllerExtraActionsTest, OpeningAFileOrFolderNeedsItToExist) {
    h.assignExtra(5, ExtraAction::openFile, "/Users/me/Notes.txt");
    h.tapAndWait(2);
    EXPECT_TRUE(h.opener.opened.empty());
    EXPECT_EQ(h.view.status, "no file Notes.txt");

    h.opener.files.insert("/Users/me/Notes.txt");
    h.tapAndWait(2);
    EXPECT_EQ(h.opener.opened, (std::vector<FakeOpener::Opened>{{"file", "/Users/me/Notes.txt"}}));
}

TEST_F(ControllerExtraActionsTest, OpeningAnAddressOpensTheCheckedUrl) {
    h.assignExtra(5, ExtraAction::openAddress, "https://www.apple.com");
    h.tapAndWait(2);
    EXPECT_EQ(h.opener.opened,
              (std::vector<FakeOpener::Opened>{{"address", "https://www.apple.com"}}));
}

TEST_F(ControllerExtraActionsTest, RunningAShortcutStartsTheShortcutsToolInTheBackground) {
    h.assignExtra(5, ExtraAction::runShortcut, "Morning Lights");
    h.tapAndWait(2);
    ASSERT_EQ(h.processes.started.size(), 1U);
    EXPECT_EQ(h.processes.started[0], (ProcessRequest{.path = "/usr/bin/shortcuts",
                                                      .arguments = {"run", "Morning Lights"},
                                                      .timeLimit = 60.0,
                                                      .captureOutput = false}));
    EXPECT_EQ(h.processes.running(), 1U);  // the main thread did not wait for it
    h.processes.finish(ended(ProcessEnd::exited));
    EXPECT_EQ(h.view.status.find("shortcut"), std::string::npos);
}

TEST_F(ControllerExtraActionsTest, AShortcutsFailureOrTimeLimitIsReported) {
    h.assignExtra(5, ExtraAction::runShortcut, "Morning Lights");
    h.tapAndWait(2);
    h.processes.finish(ended(ProcessEnd::exited, 1));
    EXPECT_EQ(h.view.status, "shortcut Morning Lights failed 1");

    h.tapAndWait(2);
    h.processes.finish(ended(ProcessEnd::timedOut));
    EXPECT_EQ(h.view.status, "shortcut Morning Lights too long");

    h.tapAndWait(2);
    h.processes.finish(ended(ProcessEnd::failedToStart));
    EXPECT_EQ(h.view.status, "not started /usr/bin/shortcuts");
}

TEST_F(ControllerExtraActionsTest, AShortcutTheMacNoLongerHasIsNotRun) {
    h.assignExtra(5, ExtraAction::runShortcut, "Gone");
    h.extras().rowButton(ExtraAction::runShortcut, "Gone");  // asks for the list
    ASSERT_EQ(h.processes.started.size(), 1U);
    EXPECT_EQ(h.processes.started[0].arguments, std::vector<std::string>{"list"});
    h.processes.finish(listed("Morning Lights\nEvening\n"));

    h.tapAndWait(2);
    EXPECT_EQ(h.processes.started.size(), 1U);
    EXPECT_EQ(h.view.status, "no shortcut Gone");
}

TEST_F(ControllerExtraActionsTest, AnAreaScreenshotStartsScreencaptureAndACancelIsNoNews) {
    h.assignExtra(5, ExtraAction::screenshotArea);
    h.view.status.clear();
    h.tapAndWait(2);
    ASSERT_EQ(h.processes.started.size(), 1U);
    EXPECT_EQ(h.processes.started[0].path, "/usr/sbin/screencapture");
    EXPECT_EQ(h.processes.started[0].arguments, (std::vector<std::string>{"-i", "-c"}));
    h.processes.finish(ended(ProcessEnd::exited, 1));
    EXPECT_EQ(h.view.status, "");

    h.tapAndWait(2);
    h.processes.finish(ended(ProcessEnd::failedToStart));
    EXPECT_EQ(h.view.status, "not started /usr/sbin/screencapture");
}

// --- Clicks with resting fingers -----------------------------------------------------------------

TEST_F(ControllerExtraActionsTest, AModifierClickHoldsThePressWithItsModifierThroughItsDrags) {
    h.assignExtra(1, ExtraAction::commandClick);
    h.rest(2);

    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.type, event::leftMouseDown);
    EXPECT_EQ(down.button(), 0);
    EXPECT_EQ(down.flags, 0x100000U);

    FakeTapEvent drag = h.mouseEvent(event::leftMouseDragged);
    EXPECT_EQ(h.send(drag), EventDisposition::pass);
    EXPECT_EQ(drag.type, event::leftMouseDragged);
    EXPECT_EQ(drag.flags, 0x100000U);

    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(up), EventDisposition::pass);
    EXPECT_EQ(up.type, event::leftMouseUp);
    EXPECT_EQ(up.flags, 0x100000U);

    h.queue.runReady();
    EXPECT_TRUE(h.poster.posted.empty());
    EXPECT_TRUE(h.c().state().presses.empty());
}

TEST_F(ControllerExtraActionsTest, TheUpPostedForAHeldModifierClickWhenPausedKeepsItsModifier) {
    h.assignExtra(1, ExtraAction::optionClick);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.c().pause();

    EXPECT_EQ(h.poster.mouseEvents(), (std::vector<MouseButtonEvent>{{.type = event::leftMouseUp,
                                                                      .button = MouseButton::left,
                                                                      .clickState = 1,
                                                                      .userData = marker,
                                                                      .flags = 0x80000}}));
    EXPECT_TRUE(h.c().state().presses.empty());
}

TEST_F(ControllerExtraActionsTest, TheUpPostedForAHeldPlainButtonCarriesNoModifier) {
    h.assign(1, action::middle);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.c().releasePresses();

    ASSERT_EQ(h.poster.mouseEvents().size(), 1U);
    EXPECT_EQ(h.poster.mouseEvents()[0].flags, 0U);
}

TEST_F(ControllerExtraActionsTest, APlainMappedButtonStillGetsNoFlags) {
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    EXPECT_EQ(down.type, event::rightMouseDown);
    EXPECT_EQ(down.flags, 0U);
}

TEST_F(ControllerExtraActionsTest, AnyOtherExtraActionOnAClickIsPerformedOnRelease) {
    h.assignExtra(1, ExtraAction::mute);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    FakeTapEvent drag = h.mouseEvent(event::leftMouseDragged);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    EXPECT_EQ(h.send(down), EventDisposition::swallow);
    EXPECT_EQ(h.send(drag), EventDisposition::swallow);
    EXPECT_TRUE(h.systemEvents.events.empty());
    EXPECT_EQ(h.send(up), EventDisposition::swallow);
    EXPECT_TRUE(h.systemEvents.events.empty());  // not inside the tap's callback
    h.queue.runReady();
    EXPECT_EQ(h.systemEvents.events.size(), 2U);
}

TEST_F(ControllerExtraActionsTest, AClickedOpenCarriesItsValueToTheRelease) {
    h.opener.applications.insert("com.apple.Mail");
    h.assignExtra(2, ExtraAction::openApplication, "com.apple.Mail");
    h.rest(3);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(down);
    h.send(up);
    h.queue.runReady();
    EXPECT_EQ(h.opener.opened,
              (std::vector<FakeOpener::Opened>{{"application", "com.apple.Mail"}}));
}

// --- The stale-action guard ----------------------------------------------------------------------

TEST_F(ControllerExtraActionsTest, PauseWithinTheWaitCancelsAnExtraAction) {
    h.assignExtra(5, ExtraAction::playPause);
    h.tap(2);
    h.c().pause();
    h.queue.advance(0.2);
    EXPECT_TRUE(h.systemEvents.events.empty());
}

TEST_F(ControllerExtraActionsTest, ProfileSwitchWithinTheWaitCancelsAnExtraAction) {
    h.assignExtra(5, ExtraAction::runShortcut, "Morning Lights");
    const std::string first = h.c().profiles().activeID().text();
    h.c().profiles().add("Other", false);
    h.view.profileChoice = first;
    h.c().selectProfile();
    h.tap(2);
    h.c().profiles().add("Third", false);
    h.queue.advance(0.2);
    for (const ProcessRequest& request : h.processes.started) {
        EXPECT_NE(request.arguments.front(), "run");  // the row may have listed the Shortcuts
    }
}

TEST_F(ControllerExtraActionsTest, AnotherApplicationInFrontWithinTheWaitCancelsAnExtraAction) {
    h.assignExtra(5, ExtraAction::spaceLeft);
    h.tap(2);
    h.workspace.frontmost = 99;
    h.queue.advance(0.2);
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(ControllerExtraActionsTest, ChangingAnActionWithinTheWaitCancelsAnExtraAction) {
    h.assignExtra(5, ExtraAction::launchpad);
    h.tap(2);
    pick(6, action::copy);
    h.queue.advance(0.2);
    EXPECT_TRUE(h.systemEvents.notifications.empty());
}

TEST_F(ControllerExtraActionsTest, AClickReleasedAfterAPauseDoesNotPerformItsExtraAction) {
    h.assignExtra(1, ExtraAction::volumeUp);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.c().cancelPendingActions();
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(up);
    h.queue.runReady();
    EXPECT_TRUE(h.systemEvents.events.empty());
}

// --- Chosen in the window ----------------------------------------------------------------------

TEST_F(ControllerExtraActionsTest, PickingAnActionWithoutAValueStoresItAtOnce) {
    pick(5, action::index(ExtraAction::mute));
    EXPECT_EQ(extraAt(5), (SlotExtra{ExtraAction::mute, ""}));
    EXPECT_EQ(h.c().mapping()[5], action::defaultAction);
    EXPECT_EQ(h.view.shownActions[5], action::index(ExtraAction::mute));
    EXPECT_FALSE(h.view.recordButtons[5]->enabled);
}

TEST_F(ControllerExtraActionsTest, PickingOpenApplicationStoresTheChosenBundleID) {
    h.opener.applications.insert("com.apple.Safari");
    h.opener.names["com.apple.Safari"] = "Safari";
    h.picker.application = "com.apple.Safari";
    pick(5, action::index(ExtraAction::openApplication));

    ASSERT_EQ(h.picker.panels.size(), 1U);
    EXPECT_EQ(h.picker.panels[0].chooseButton, "extra.choose");
    EXPECT_EQ(extraAt(5), (SlotExtra{ExtraAction::openApplication, "com.apple.Safari"}));
    EXPECT_EQ(h.view.shownActions[5], action::index(ExtraAction::openApplication));
    EXPECT_EQ(h.view.recordButtons[5]->title, "Safari");
    EXPECT_EQ(h.view.recordButtons[5]->toolTip, "com.apple.Safari");
}

TEST_F(ControllerExtraActionsTest, CancellingThePanelKeepsTheSlotsAction) {
    h.assign(5, action::copy);
    pick(5, action::index(ExtraAction::openFile));
    EXPECT_EQ(extraAt(5), std::nullopt);
    EXPECT_EQ(h.c().mapping()[5], action::copy);
    EXPECT_EQ(h.view.shownActions[5], action::copy);
}

TEST_F(ControllerExtraActionsTest, AnAddressIsTypedAndChecked) {
    h.dialogs.name = "www.apple.com";
    pick(5, action::index(ExtraAction::openAddress));
    ASSERT_TRUE(h.dialogs.namingTexts);
    EXPECT_EQ(h.dialogs.namingTexts->message, "extra.url.title");
    EXPECT_EQ(extraAt(5), (SlotExtra{ExtraAction::openAddress, "https://www.apple.com"}));

    // Picked again, the field starts from the address the slot has.
    h.dialogs.name = "not an address";
    pick(5, action::index(ExtraAction::openAddress));
    EXPECT_EQ(h.dialogs.namingTexts->initialText, "https://www.apple.com");
    EXPECT_EQ(h.view.status, "bad url not an address");
    EXPECT_EQ(extraAt(5), (SlotExtra{ExtraAction::openAddress, "https://www.apple.com"}));
}

TEST_F(ControllerExtraActionsTest, AShortcutIsPickedFromTheShortcutsTheMacHas) {
    h.picker.listChoice = "Evening";
    pick(6, action::index(ExtraAction::runShortcut));
    ASSERT_EQ(h.processes.started.size(), 1U);
    EXPECT_EQ(h.picker.listsShown, 0);  // the list comes first, in the background

    h.processes.finish(listed("Morning Lights\nEvening\n"));
    EXPECT_EQ(h.picker.listEntries, (std::vector<std::string>{"Morning Lights", "Evening"}));
    EXPECT_EQ(extraAt(6), (SlotExtra{ExtraAction::runShortcut, "Evening"}));
    EXPECT_EQ(h.view.shownActions[6], action::index(ExtraAction::runShortcut));
    EXPECT_EQ(h.view.recordButtons[6]->title, "Evening");
}

TEST_F(ControllerExtraActionsTest, WithoutShortcutsNothingIsPickedAndTheStatusSaysSo) {
    pick(6, action::index(ExtraAction::runShortcut));
    h.processes.finish(listed(""));
    EXPECT_EQ(h.picker.listsShown, 0);
    EXPECT_EQ(h.view.status, "extra.shortcut.none");
    EXPECT_EQ(extraAt(6), std::nullopt);
}

TEST_F(ControllerExtraActionsTest, PickingOneOfTheFifteenTakesTheExtraAway) {
    h.assignExtra(5, ExtraAction::mute);
    pick(5, action::paste);
    EXPECT_EQ(extraAt(5), std::nullopt);
    EXPECT_EQ(h.c().mapping()[5], action::paste);
    EXPECT_EQ(h.view.shownActions[5], action::paste);
}

TEST_F(ControllerExtraActionsTest, ARowWhoseValueIsMissingSaysSo) {
    h.assignExtra(5, ExtraAction::openApplication, "com.example.Gone");
    h.c().refreshProfileUI();
    EXPECT_EQ(h.view.recordButtons[5]->title, "missing com.example.Gone");
    EXPECT_FALSE(h.view.recordButtons[5]->enabled);
}

TEST_F(ControllerExtraActionsTest, AShortcutFoundMissingLaterUpdatesItsRow) {
    h.assignExtra(5, ExtraAction::runShortcut, "Gone");
    h.c().refreshProfileUI();
    EXPECT_EQ(h.view.recordButtons[5]->title, "Gone");  // not known yet
    h.processes.finish(listed("Evening\n"));
    EXPECT_EQ(h.view.recordButtons[5]->title, "missing Gone");
}

TEST(ControllerWithoutExtraActionsTest, ExtraActionsDoNothingWithoutAPerformer) {
    ControllerHarness h;
    h.launchAndSwitchOn();
    h.c().profiles().setExtra({ExtraAction::spotlight, ""}, 5);
    h.tap(2);
    h.queue.advance(0.2);
    EXPECT_TRUE(h.poster.posted.empty());
}

// --- Stored, exported and imported
// ------------------------------------------------------------------

TEST_F(ControllerExtraActionsTest, AnImportedValueNoLongerValidIsKeptAndShownAsMissing) {
    WorkProfile imported("Imported");
    imported.extras.resize(8);
    imported.extras[5] = SlotExtra{ExtraAction::openApplication, "com.example.Gone"};
    imported.extras[6] = SlotExtra{ExtraAction::openAddress, "not a url"};
    h.files.importPath = "/Users/me/Other.json";
    h.files.files["/Users/me/Other.json"] = *encodeProfiles({imported});
    h.a().profileFiles().importProfiles();

    ASSERT_EQ(h.c().profiles().profiles().size(), 2U);
    h.view.profileChoice = h.c().profiles().profiles()[1].id.text();
    h.c().selectProfile();
    EXPECT_EQ(extraAt(5), (SlotExtra{ExtraAction::openApplication, "com.example.Gone"}));
    EXPECT_EQ(extraAt(6), (SlotExtra{ExtraAction::openAddress, "not a url"}));
    EXPECT_EQ(h.view.recordButtons[5]->title, "missing com.example.Gone");
    EXPECT_EQ(h.view.recordButtons[6]->title, "missing not a url");

    h.tapAndWait(3);
    EXPECT_TRUE(h.opener.opened.empty());
    EXPECT_EQ(h.view.status, "no url not a url");
}

TEST_F(ControllerExtraActionsTest, ExportCarriesTheExtraActionsAndTheirValues) {
    h.assignExtra(4, ExtraAction::runShortcut, "Evening");
    h.files.exportPath = "/Users/me/Profiles.json";
    h.a().profileFiles().exportProfiles();
    const auto decoded = decodeProfiles(h.files.files.at("/Users/me/Profiles.json"));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->at(0).extraAt(4), (SlotExtra{ExtraAction::runShortcut, "Evening"}));
    EXPECT_EQ(decoded->at(0).actions.at(4), action::defaultAction);
}

// What a copy that knows only the fifteen does with preferences that a newer copy wrote: it reads
// the same list, ignoring the key it does not know, and performs the default in every slot that
// holds an extra action.
TEST(ControllerExtraActionsPropertyTest, AnOlderReaderPerformsNothingWhereAnExtraActionIsStored) {
    std::mt19937 random(1124);
    std::uniform_int_distribution<int> extra(0, static_cast<int>(action::extraCount) - 1);
    std::uniform_int_distribution<int> coin(0, 1);
    for (int round = 0; round < 20; ++round) {
        WorkProfile written("Newer");
        written.extras.resize(8);
        for (std::size_t slot = 4; slot < 8; ++slot) {
            if (coin(random) == 1) {
                written.extras[slot] = SlotExtra{static_cast<ExtraAction>(extra(random)), "v"};
            }
        }
        written.sanitize();
        nlohmann::json document = nlohmann::json::parse(*encodeProfiles({written}));
        for (nlohmann::json& profile : document) {
            profile.erase("extraActions");
        }
        const std::string older = document.dump();
        auto defaults = std::make_shared<MemoryPreferences>();
        defaults->setData(ProfileStore::profilesKey, Bytes(older.begin(), older.end()));

        ControllerHarness h(defaults);
        h.launchAndSwitchOn();
        for (std::int32_t fingers = 1; fingers <= 4; ++fingers) {
            const auto slot = static_cast<std::size_t>(slot::forTap(fingers));
            EXPECT_EQ(h.c().mapping().at(slot), action::defaultAction);
            h.tap(fingers);
            h.queue.advance(0.2);
        }
        EXPECT_EQ(h.performedCount(), 0U) << older;
    }
}

}  // namespace
}  // namespace tactora::testing
