#include "core/devicetable/DeviceTable.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/actions/ExtraAction.h"
#include "core/devices/SystemGestureConflicts.h"
#include "core/devicetable/DeviceTableRows.h"
#include "core/profiles/GestureSlot.h"
#include "core/profiles/ProfileStore.h"
#include "devicetable/DeviceTableHarness.h"

namespace tactora::testing {
namespace {

constexpr std::uint64_t mouseID = 10;
constexpr std::uint64_t trackpadID = 20;
constexpr std::uint64_t builtInID = 30;
constexpr std::uint16_t keyK = 40;
constexpr std::uint64_t command = 0x100000;
constexpr const char* builtInDomain = "com.apple.AppleMultitouchTrackpad";

const TouchDevice mouse{.id = mouseID,
                        .kind = TouchDeviceKind::magicMouse,
                        .state = TouchDeviceState::connected,
                        .name = "Magic Mouse"};
const TouchDevice trackpad{.id = trackpadID,
                           .kind = TouchDeviceKind::magicTrackpad,
                           .state = TouchDeviceState::off,
                           .name = "Magic Trackpad"};
const TouchDevice builtIn{.id = builtInID,
                          .kind = TouchDeviceKind::builtInTrackpad,
                          .state = TouchDeviceState::off,
                          .name = ""};

KeyPress commandK() {
    return {.keyCode = keyK,
            .modifierFlags = command,
            .isRepeat = false,
            .charactersIgnoringModifiers = "k",
            .inDialogWindow = true};
}

class DeviceTableTest : public ::testing::Test {
  protected:
    void launchWith(std::vector<TouchDevice> devices) {
        d.touchDevices.listed = std::move(devices);
        d.launchAndSwitchOn();
    }

    DeviceTable& table() { return d.a().deviceTable(); }
    ProfileStore& store() { return d.c().profiles(); }
    const GestureSlots& trackpadSlots() { return store().current().trackpad; }
    const DeviceTableContent& shown() {
        EXPECT_TRUE(d.view.shown.has_value());
        static const DeviceTableContent nothing;
        return d.view.shown ? *d.view.shown : nothing;
    }
    const DeviceLine* lineOf(std::uint64_t device) {
        for (const DeviceLine& line : shown().devices) {
            if (line.device == device) {
                return &line;
            }
        }
        return nullptr;
    }
    const TrackpadRow& row(std::int64_t slot) {
        return shown().rows.at(static_cast<std::size_t>(slot));
    }
    // What a later launch finds in the preferences.
    GestureSlots reloaded() {
        const ProfileStore later(h.defaults, "Default");
        return later.current().trackpad;
    }
    // Trackpads chosen above the table, with the Magic Trackpad seen.
    void showTrackpadRows() {
        launchWith({mouse, trackpad});
        table().chooseSurface(SurfaceKind::trackpad);
    }

    DeviceTableHarness d;
    ControllerHarness& h = d.h;
};

TEST_F(DeviceTableTest, NothingIsShownBeforeLaunchingFinished) {
    d.touchDevices.listed = {mouse, trackpad};
    table().chooseSurface(SurfaceKind::trackpad);
    table().devicesChanged();

    EXPECT_EQ(d.view.shows, 0);
}

TEST_F(DeviceTableTest, LaunchingShowsEveryDeviceSeen) {
    launchWith({mouse, trackpad, builtIn});

    ASSERT_EQ(shown().devices.size(), 3U);
    EXPECT_EQ(shown().devicesTitle, L("devices.title"));
    EXPECT_EQ(shown().devices[0].device, mouseID);
    EXPECT_EQ(shown().devices[0].title, devicetable::deviceTitle(d.touchDevices.listed[0]));
    EXPECT_EQ(shown().devices[1].device, trackpadID);
    EXPECT_EQ(shown().devices[2].device, builtInID);
}

TEST_F(DeviceTableTest, TheMagicMouseIsTickedAndCannotBeUnticked) {
    launchWith({mouse, trackpad});
    ASSERT_NE(lineOf(mouseID), nullptr);
    EXPECT_TRUE(lineOf(mouseID)->checked);
    EXPECT_FALSE(lineOf(mouseID)->enabled);
    const int shows = d.view.shows;

    table().setUses(mouseID, false);

    EXPECT_TRUE(d.a().deviceGestures().uses(mouse));
    EXPECT_TRUE(lineOf(mouseID)->checked);
    EXPECT_GT(d.view.shows, shows) << "the box the user changed goes back";
}

TEST_F(DeviceTableTest, ATrackpadIsUnusedUntilTheUserTicksIt) {
    launchWith({mouse, trackpad});
    ASSERT_NE(lineOf(trackpadID), nullptr);
    EXPECT_FALSE(lineOf(trackpadID)->checked);
    EXPECT_TRUE(lineOf(trackpadID)->enabled);

    table().setUses(trackpadID, true);

    EXPECT_TRUE(d.a().deviceGestures().uses(trackpad));
    EXPECT_TRUE(lineOf(trackpadID)->checked);
    EXPECT_EQ(d.touchDevices.listed[1].state, TouchDeviceState::connected);
    EXPECT_EQ(lineOf(trackpadID)->title, devicetable::deviceTitle(d.touchDevices.listed[1]));

    table().setUses(trackpadID, false);

    EXPECT_FALSE(lineOf(trackpadID)->checked);
    EXPECT_EQ(d.touchDevices.listed[1].state, TouchDeviceState::off);
}

TEST_F(DeviceTableTest, AnUnknownDeviceChangesNothing) {
    launchWith({mouse, trackpad});
    const DeviceTableContent before = shown();

    table().setUses(99, true);

    EXPECT_EQ(shown(), before);
}

TEST_F(DeviceTableTest, TheListFollowsDevicesThatComeAndGo) {
    launchWith({mouse});
    EXPECT_EQ(shown().devices.size(), 1U);
    EXPECT_FALSE(shown().showsSurfaceChoice);

    d.touchDevices.listed.push_back(trackpad);
    d.touchDevices.changed();

    ASSERT_EQ(shown().devices.size(), 2U);
    EXPECT_TRUE(shown().showsSurfaceChoice);

    d.touchDevices.leave(trackpadID);

    ASSERT_NE(lineOf(trackpadID), nullptr);
    EXPECT_EQ(lineOf(trackpadID)->title,
              L("devices.entry", "Magic Trackpad", L("devices.state.missing")));
}

TEST_F(DeviceTableTest, TheSurfaceChoiceAppearsOnlyOnceATrackpadIsSeen) {
    launchWith({mouse});
    table().chooseSurface(SurfaceKind::trackpad);

    EXPECT_FALSE(shown().showsSurfaceChoice);
    EXPECT_FALSE(shown().showsTrackpadRows) << "no trackpad rows without a trackpad";

    d.touchDevices.listed.push_back(builtIn);
    d.touchDevices.changed();

    EXPECT_TRUE(shown().showsSurfaceChoice);
    EXPECT_TRUE(shown().showsTrackpadRows);
    EXPECT_EQ(shown().openTitle, L("devices.open"));
    EXPECT_EQ(shown().mouseSurface, L("devices.surface.mouse"));
    EXPECT_EQ(shown().trackpadSurface, L("devices.surface.trackpads"));
    EXPECT_EQ(shown().surfaceHelp, L("devices.surface.help"));
    EXPECT_EQ(shown().doneTitle, L("devices.done"));
}

TEST_F(DeviceTableTest, TheMouseRowsShowUntilTrackpadsAreChosen) {
    launchWith({mouse, trackpad});
    EXPECT_TRUE(shown().showsSurfaceChoice);
    EXPECT_FALSE(shown().showsTrackpadRows);
    EXPECT_EQ(table().surface(), SurfaceKind::mouse);

    table().chooseSurface(SurfaceKind::trackpad);
    EXPECT_TRUE(shown().showsTrackpadRows);
    EXPECT_EQ(shown().hint, L("devices.trackpad.hint"));

    table().chooseSurface(SurfaceKind::mouse);
    EXPECT_FALSE(shown().showsTrackpadRows);
}

TEST_F(DeviceTableTest, TheRowsShowTheTrackpadSlots) {
    store().setAction(action::middle, slot::forTap(3), SurfaceKind::trackpad);
    showTrackpadRows();

    EXPECT_EQ(shown().rows, devicetable::trackpadRows(trackpadSlots(), nullptr));
    EXPECT_EQ(row(slot::forTap(3)).action, action::middle);
    EXPECT_EQ(row(slot::forClick(3)).action, action::defaultAction);
}

TEST_F(DeviceTableTest, AChosenActionIsStoredInTheTrackpadSlotsOnly) {
    showTrackpadRows();
    const std::vector<ActionIndex> mouseActions = store().current().actions;

    table().changed(slot::forClick(3), action::middle);

    EXPECT_EQ(trackpadSlots().actions[static_cast<std::size_t>(slot::forClick(3))], action::middle);
    EXPECT_EQ(reloaded().actions[static_cast<std::size_t>(slot::forClick(3))], action::middle);
    EXPECT_EQ(store().current().actions, mouseActions);
    EXPECT_EQ(row(slot::forClick(3)).action, action::middle);
}

TEST_F(DeviceTableTest, AnUnknownSlotOrActionStoresNothingAndShowsTheRowsAgain) {
    showTrackpadRows();
    const GestureSlots before = trackpadSlots();
    const int shows = d.view.shows;

    table().changed(8, action::middle);
    table().changed(-1, action::middle);
    table().changed(slot::forTap(1), 9999);
    table().changed(slot::forTap(1), -3);

    EXPECT_EQ(trackpadSlots(), before);
    EXPECT_EQ(d.view.shows, shows + 4);
}

TEST_F(DeviceTableTest, TheCustomActionWithoutAShortcutRecordsOneAndStoresBoth) {
    showTrackpadRows();
    h.dialogs.keys = {commandK()};
    h.dialogs.save = true;

    table().changed(slot::forTap(4), action::custom);

    const auto index = static_cast<std::size_t>(slot::forTap(4));
    EXPECT_EQ(trackpadSlots().actions[index], action::custom);
    ASSERT_TRUE(trackpadSlots().shortcuts[index].has_value());
    EXPECT_EQ(row(slot::forTap(4)).record.title, trackpadSlots().shortcuts[index]->label);
    EXPECT_TRUE(row(slot::forTap(4)).record.enabled);
    EXPECT_FALSE(store().current().shortcuts[index].has_value()) << "the mouse's slot is alone";
}

TEST_F(DeviceTableTest, ACancelledRecordingKeepsWhatTheSlotHad) {
    showTrackpadRows();
    table().changed(slot::forTap(4), action::copy);
    h.dialogs.keys = {commandK()};
    h.dialogs.save = false;

    table().changed(slot::forTap(4), action::custom);

    EXPECT_EQ(trackpadSlots().actions[static_cast<std::size_t>(slot::forTap(4))], action::copy);
    EXPECT_EQ(row(slot::forTap(4)).action, action::copy);
}

TEST_F(DeviceTableTest, TheRecordButtonRecordsAShortcutForTheTrackpadSlot) {
    showTrackpadRows();
    h.dialogs.keys = {commandK()};
    h.dialogs.save = true;

    table().recordShortcut(slot::forClick(2));
    table().recordShortcut(42);

    EXPECT_EQ(h.log.count("dialogs.recording"), 1) << "an unknown slot records nothing";

    const auto index = static_cast<std::size_t>(slot::forClick(2));
    EXPECT_EQ(trackpadSlots().actions[index], action::custom);
    EXPECT_TRUE(reloaded().shortcuts[index].has_value());
}

TEST_F(DeviceTableTest, AFurtherActionWithoutTheFurtherActionsStoresNothing) {
    showTrackpadRows();
    const GestureSlots before = trackpadSlots();

    table().changed(slot::forTap(3), action::index(ExtraAction::playPause));

    EXPECT_EQ(trackpadSlots(), before);
    EXPECT_EQ(row(slot::forTap(3)).action, action::defaultAction);
}

TEST_F(DeviceTableTest, ASlotWithAFurtherActionShowsItAndTheDefaultTakesItAway) {
    store().setExtra({ExtraAction::playPause, ""}, slot::forTap(3), SurfaceKind::trackpad);
    showTrackpadRows();
    EXPECT_EQ(row(slot::forTap(3)).action, action::index(ExtraAction::playPause));

    table().changed(slot::forTap(3), action::defaultAction);

    EXPECT_FALSE(trackpadSlots().extraAt(static_cast<std::size_t>(slot::forTap(3))));
    EXPECT_EQ(row(slot::forTap(3)).action, action::defaultAction);
}

TEST_F(DeviceTableTest, ConflictsShowOnceATrackpadIsSeenWhicheverRowsAreShown) {
    d.preferences.set(builtInDomain, "Clicking", 1);
    store().setAction(action::middle, slot::forTap(1), SurfaceKind::trackpad);
    launchWith({mouse});
    EXPECT_TRUE(shown().conflicts.empty()) << "no sheet without a trackpad";

    d.touchDevices.listed.push_back(trackpad);
    d.touchDevices.changed();

    EXPECT_FALSE(shown().showsTrackpadRows);
    EXPECT_EQ(shown().conflicts, devicetable::conflictLines(trackpadSlots(), table().settings()));
    ASSERT_EQ(shown().conflicts.size(), 1U);
    EXPECT_EQ(shown().conflicts[0].tag,
              static_cast<std::int64_t>(SystemTrackpadGesture::tapToClick));
    EXPECT_EQ(shown().conflicts[0].slot, slot::forTap(1));

    table().chooseSurface(SurfaceKind::trackpad);
    EXPECT_EQ(shown().conflicts.size(), 1U);
}

TEST_F(DeviceTableTest, TheCompetingRowShowsItsConflictAndTheOthersNone) {
    store().setAction(action::middle, slot::forTap(3), SurfaceKind::trackpad);
    store().setAction(action::copy, slot::forClick(2), SurfaceKind::trackpad);
    d.preferences.set(builtInDomain, "TrackpadThreeFingerTapGesture", 2);
    showTrackpadRows();

    // Secondary click is on unless switched off.
    EXPECT_EQ(row(slot::forClick(2)).conflict,
              L("devices.conflict", L("gesture.click", 2), L("devices.system.secondary_click")));
    EXPECT_EQ(row(slot::forTap(3)).conflict,
              L("devices.conflict", L("gesture.tap", 3), L("devices.system.look_up")));
    EXPECT_TRUE(row(slot::forTap(1)).conflict.empty());
    EXPECT_TRUE(row(slot::forClick(3)).conflict.empty());
}

TEST_F(DeviceTableTest, MappingAGestureAddsItsConflictAndTheDefaultTakesItAway) {
    showTrackpadRows();
    EXPECT_TRUE(shown().conflicts.empty());

    // Secondary click is on unless switched off.
    table().changed(slot::forClick(2), action::copy);
    ASSERT_EQ(shown().conflicts.size(), 1U);
    EXPECT_EQ(shown().conflicts[0].text,
              L("devices.conflict", L("gesture.click", 2), L("devices.system.secondary_click")));

    table().changed(slot::forClick(2), action::defaultAction);
    EXPECT_TRUE(shown().conflicts.empty());
}

TEST_F(DeviceTableTest, TheSettingsAreReadAgainWhenTheWindowIsShownOrTheAppBecomesActive) {
    store().setAction(action::middle, slot::forTap(3), SurfaceKind::trackpad);
    showTrackpadRows();
    EXPECT_TRUE(shown().conflicts.empty());

    d.preferences.set(builtInDomain, "TrackpadThreeFingerDrag", 1);
    d.c().refresh();
    EXPECT_TRUE(shown().conflicts.empty()) << "not read on every refresh";

    d.c().show();
    ASSERT_EQ(shown().conflicts.size(), 1U);
    EXPECT_EQ(shown().conflicts[0].tag,
              static_cast<std::int64_t>(SystemTrackpadGesture::threeFingerDrag));

    d.preferences.set(builtInDomain, "TrackpadThreeFingerDrag", 0);
    d.c().applicationDidResignActive();
    EXPECT_EQ(shown().conflicts.size(), 1U);
    d.c().applicationDidBecomeActive();
    EXPECT_TRUE(shown().conflicts.empty());
}

TEST_F(DeviceTableTest, AConflictsButtonOpensTheSettingsOfItsGesture) {
    launchWith({mouse, trackpad});

    table().openSettings(static_cast<std::int64_t>(SystemTrackpadGesture::threeFingerDrag));
    table().openSettings(static_cast<std::int64_t>(SystemTrackpadGesture::smartZoom));
    table().openSettings(5);
    table().openSettings(-1);

    EXPECT_EQ(h.workspace.openedURLs,
              (std::vector<std::string>{
                  std::string(settingsAddress(SystemTrackpadGesture::threeFingerDrag)),
                  std::string(settingsAddress(SystemTrackpadGesture::smartZoom))}));
}

TEST_F(DeviceTableTest, ASwitchOfProfileShowsTheOtherProfilesTrackpadSlots) {
    showTrackpadRows();
    table().changed(slot::forTap(3), action::middle);
    const Uuid first = store().activeID();

    store().add("Second", false);
    d.c().refresh();
    EXPECT_EQ(row(slot::forTap(3)).action, action::defaultAction);

    d.c().switchProfileAutomatically(first);
    EXPECT_EQ(row(slot::forTap(3)).action, action::middle);
}

TEST_F(DeviceTableTest, ARefreshThatChangesNothingShowsNothing) {
    showTrackpadRows();
    const int shows = d.view.shows;

    d.c().refresh();
    d.c().refresh();

    EXPECT_EQ(d.view.shows, shows);
}

TEST_F(DeviceTableTest, TheMouseRowsAreLeftAlone) {
    showTrackpadRows();

    table().changed(slot::forTap(2), action::copy);

    EXPECT_EQ(h.view.selectedAction(static_cast<std::size_t>(slot::forTap(2))),
              action::defaultAction);
    EXPECT_EQ(store().current().actions[static_cast<std::size_t>(slot::forTap(2))],
              action::defaultAction);
}

}  // namespace
}  // namespace tactora::testing
