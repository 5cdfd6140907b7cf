#include "core/devicetable/DeviceTableRows.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/actions/ExtraActionMenu.h"
#include "core/app/GestureRow.h"
#include "core/app/Globals.h"
#include "core/profiles/GestureSlot.h"

namespace tactora::testing {
namespace {

// Titles the further actions' buttons, and remembers nothing else.
class TitlingExtras final : public ExtraActionPerformer {
  public:
    void perform(ExtraAction /*action*/, const std::string& /*value*/) override {}
    RecordButtonState rowButton(ExtraAction /*action*/, const std::string& value) override {
        return {.enabled = true, .title = "button " + value, .toolTip = "tip"};
    }
    void choose(ExtraAction /*action*/, const std::string& /*current*/,
                std::function<void(const std::string&)> /*chosen*/) override {}
};

class DeviceTableRowsTest : public ::testing::Test {
  protected:
    // The harness installs a string table and the action names.
    ControllerHarness h;
};

TEST_F(DeviceTableRowsTest, ADeviceIsNamedByItsNameOrElseItsKindThenItsState) {
    const TouchDevice named{.id = 1,
                            .kind = TouchDeviceKind::magicTrackpad,
                            .state = TouchDeviceState::connected,
                            .name = "Studio Trackpad"};
    EXPECT_EQ(devicetable::deviceTitle(named),
              L("devices.entry", "Studio Trackpad", L("devices.state.connected")));

    const std::vector<std::pair<TouchDeviceKind, const char*>> kinds = {
        {TouchDeviceKind::magicMouse, "devices.kind.magic_mouse"},
        {TouchDeviceKind::magicTrackpad, "devices.kind.magic_trackpad"},
        {TouchDeviceKind::builtInTrackpad, "devices.kind.built_in_trackpad"},
        {TouchDeviceKind::other, "devices.kind.other"},
    };
    for (const auto& [kind, key] : kinds) {
        const TouchDevice unnamed{
            .id = 2, .kind = kind, .state = TouchDeviceState::off, .error = 0, .name = ""};
        EXPECT_EQ(devicetable::deviceTitle(unnamed),
                  L("devices.entry", L(key), L("devices.state.off")))
            << key;
    }
}

TEST_F(DeviceTableRowsTest, EveryStateHasItsTextAndABlockedDeviceItsError) {
    TouchDevice device{.id = 1, .kind = TouchDeviceKind::builtInTrackpad, .name = "Internal"};
    device.state = TouchDeviceState::missing;
    EXPECT_EQ(devicetable::deviceTitle(device),
              L("devices.entry", "Internal", L("devices.state.missing")));
    device.state = TouchDeviceState::blocked;
    device.error = -536870212;
    EXPECT_EQ(devicetable::deviceTitle(device),
              L("devices.entry", "Internal", L("devices.state.blocked", std::int64_t{-536870212})));
}

TEST_F(DeviceTableRowsTest, TheMagicMouseIsAlwaysTickedAndTheOthersAsChosen) {
    const std::vector<TouchDevice> devices = {
        {.id = 1, .kind = TouchDeviceKind::magicMouse, .name = "Mouse"},
        {.id = 2, .kind = TouchDeviceKind::magicTrackpad, .name = "Pad"},
        {.id = 3, .kind = TouchDeviceKind::builtInTrackpad, .name = "Internal"},
    };

    const std::vector<DeviceLine> lines =
        devicetable::deviceLines(devices, [](const TouchDevice& device) { return device.id == 3; });

    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].device, 1U);
    EXPECT_TRUE(lines[0].checked);
    EXPECT_FALSE(lines[0].enabled);
    EXPECT_EQ(lines[1].device, 2U);
    EXPECT_FALSE(lines[1].checked);
    EXPECT_TRUE(lines[1].enabled);
    EXPECT_EQ(lines[2].device, 3U);
    EXPECT_TRUE(lines[2].checked);
    for (const DeviceLine& line : lines) {
        EXPECT_EQ(line.toolTip, L("devices.use.help"));
    }
    EXPECT_TRUE(devicetable::deviceLines(devices, {})[0].checked);
    EXPECT_FALSE(devicetable::deviceLines(devices, {})[1].checked);
}

TEST_F(DeviceTableRowsTest, TheRowsAreTheMouseRowsWithTheSamePopUps) {
    const std::vector<TrackpadRow> rows = devicetable::trackpadRows(GestureSlots(), nullptr);
    const std::vector<GestureRow> mouseRows = gestureRows();

    ASSERT_EQ(rows.size(), mouseRows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].heading, mouseRows[i].heading);
        EXPECT_EQ(rows[i].fingerLabel, mouseRows[i].fingerLabel);
        EXPECT_EQ(rows[i].slot, mouseRows[i].slot);
        ASSERT_EQ(rows[i].actions.size(), static_cast<std::size_t>(action::count));
        for (std::size_t a = 0; a < rows[i].actions.size(); ++a) {
            EXPECT_EQ(rows[i].actions[a].title, choices()[a]);
            EXPECT_EQ(rows[i].actions[a].action, static_cast<std::int64_t>(a));
        }
        EXPECT_EQ(rows[i].extraActionGroups, extraActionMenu());
        EXPECT_EQ(rows[i].action, action::defaultAction);
        EXPECT_FALSE(rows[i].record.enabled);
        EXPECT_EQ(rows[i].record.title, L("record.button"));
    }
}

TEST_F(DeviceTableRowsTest, ARowShowsItsSlotsActionShortcutAndFurtherAction) {
    GestureSlots slots;
    slots.actions[0] = action::middle;
    slots.actions[1] = action::custom;
    slots.shortcuts[1] = SavedShortcut(11, 0x100000, "⌘B");
    slots.shortcuts[2] = SavedShortcut(11, 0x100000, "⌘B");
    slots.extras.resize(slot::count);
    slots.extras[6] = SlotExtra{.action = ExtraAction::openAddress, .value = "https://a.b"};
    TitlingExtras extras;

    const std::vector<TrackpadRow> rows = devicetable::trackpadRows(slots, &extras);

    EXPECT_EQ(rows[0].action, action::middle);
    EXPECT_EQ(rows[1].action, action::custom);
    EXPECT_TRUE(rows[1].record.enabled);
    EXPECT_EQ(rows[1].record.title, "⌘B");
    // A kept shortcut titles the button without enabling it, as in the mouse's rows.
    EXPECT_FALSE(rows[2].record.enabled);
    EXPECT_EQ(rows[2].record.title, "⌘B");
    EXPECT_EQ(rows[6].action, action::index(ExtraAction::openAddress));
    EXPECT_EQ(rows[6].record, extras.rowButton(ExtraAction::openAddress, "https://a.b"));
    EXPECT_FALSE(devicetable::trackpadRows(slots, nullptr)[6].record.enabled);
}

TEST_F(DeviceTableRowsTest, AnActionOutsideTheCatalogueShowsItsNearestEnd) {
    GestureSlots slots;
    slots.actions[3] = 99;
    slots.actions[4] = -4;

    const std::vector<TrackpadRow> rows = devicetable::trackpadRows(slots, nullptr);

    EXPECT_EQ(rows[3].action, action::count - 1);
    EXPECT_EQ(rows[4].action, action::defaultAction);
}

TEST_F(DeviceTableRowsTest, EverySystemGestureHasItsName) {
    EXPECT_EQ(devicetable::systemGestureName(SystemTrackpadGesture::tapToClick),
              L("devices.system.tap_to_click"));
    EXPECT_EQ(devicetable::systemGestureName(SystemTrackpadGesture::secondaryClick),
              L("devices.system.secondary_click"));
    EXPECT_EQ(devicetable::systemGestureName(SystemTrackpadGesture::threeFingerDrag),
              L("devices.system.three_finger_drag"));
    EXPECT_EQ(devicetable::systemGestureName(SystemTrackpadGesture::lookUp),
              L("devices.system.look_up"));
    EXPECT_EQ(devicetable::systemGestureName(SystemTrackpadGesture::smartZoom),
              L("devices.system.smart_zoom"));
}

TEST_F(DeviceTableRowsTest, AConflictNamesTheGestureAndTheSystemsAndOpensItsSettings) {
    GestureSlots slots;
    slots.actions[static_cast<std::size_t>(slot::forTap(2))] = action::middle;
    slots.actions[static_cast<std::size_t>(slot::forClick(3))] = action::middle;
    const TrackpadSettings all{.tapToClick = true,
                               .secondaryClick = true,
                               .threeFingerDrag = true,
                               .lookUpByThreeFingerTap = true,
                               .smartZoom = true};
    const std::string open = L("devices.conflict.open");

    EXPECT_EQ(
        devicetable::conflictLines(slots, all),
        (std::vector<ConflictLine>{
            {.slot = slot::forClick(3),
             .text = L("devices.conflict", L("gesture.click", 3),
                       L("devices.system.three_finger_drag")),
             .buttonTitle = open,
             .tag = static_cast<std::int64_t>(SystemTrackpadGesture::threeFingerDrag)},
            {.slot = slot::forTap(2),
             .text =
                 L("devices.conflict", L("gesture.tap", 2), L("devices.system.secondary_click")),
             .buttonTitle = open,
             .tag = static_cast<std::int64_t>(SystemTrackpadGesture::secondaryClick)},
            {.slot = slot::forTap(2),
             .text = L("devices.conflict", L("gesture.tap", 2), L("devices.system.smart_zoom")),
             .buttonTitle = open,
             .tag = static_cast<std::int64_t>(SystemTrackpadGesture::smartZoom)},
        }));
    EXPECT_TRUE(devicetable::conflictLines(GestureSlots(), all).empty());
}

TEST_F(DeviceTableRowsTest, ARowShowsEachOfItsSlotsConflictsOnALineAndNoOtherSlots) {
    std::vector<TrackpadRow> rows = devicetable::trackpadRows(GestureSlots(), nullptr);
    rows[0].conflict = "left from before";
    const std::int64_t twoFingerTap = slot::forTap(2);
    const std::vector<ConflictLine> conflicts = {
        {.slot = twoFingerTap, .text = "secondary", .buttonTitle = "open", .tag = 1},
        {.slot = slot::forClick(3), .text = "drag", .buttonTitle = "open", .tag = 2},
        {.slot = twoFingerTap, .text = "zoom", .buttonTitle = "open", .tag = 4},
    };

    devicetable::markConflicts(rows, conflicts);

    for (const TrackpadRow& row : rows) {
        if (row.slot == twoFingerTap) {
            EXPECT_EQ(row.conflict, "secondary\nzoom");
        } else if (row.slot == slot::forClick(3)) {
            EXPECT_EQ(row.conflict, "drag");
        } else {
            EXPECT_EQ(row.conflict, "") << "slot " << row.slot;
        }
    }
}

}  // namespace
}  // namespace tactora::testing
