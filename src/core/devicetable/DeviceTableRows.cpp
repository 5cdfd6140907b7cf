#include "core/devicetable/DeviceTableRows.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "core/actions/ActionIndex.h"
#include "core/actions/ExtraAction.h"
#include "core/actions/ExtraActionMenu.h"
#include "core/app/GestureRow.h"
#include "core/app/Globals.h"
#include "core/app/RowRecordButton.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"

namespace tactora::devicetable {

namespace {

std::string kindName(TouchDeviceKind kind) {
    switch (kind) {
        case TouchDeviceKind::magicMouse:
            return L("devices.kind.magic_mouse");
        case TouchDeviceKind::magicTrackpad:
            return L("devices.kind.magic_trackpad");
        case TouchDeviceKind::builtInTrackpad:
            return L("devices.kind.built_in_trackpad");
        case TouchDeviceKind::other:
            break;
    }
    return L("devices.kind.other");
}

std::string stateName(const TouchDevice& device) {
    switch (device.state) {
        case TouchDeviceState::connected:
            return L("devices.state.connected");
        case TouchDeviceState::missing:
            return L("devices.state.missing");
        case TouchDeviceState::blocked:
            return L("devices.state.blocked", std::int64_t{device.error});
        case TouchDeviceState::off:
            break;
    }
    return L("devices.state.off");
}

// A slot's action and shortcut; short lists are read as far as they go.
ActionIndex actionAt(const GestureSlots& slots, std::size_t index) {
    return index < slots.actions.size() ? slots.actions[index] : action::defaultAction;
}

std::optional<SavedShortcut> shortcutAt(const GestureSlots& slots, std::size_t index) {
    return index < slots.shortcuts.size() ? slots.shortcuts[index] : std::nullopt;
}

// What a slot's pop-up selects: its further action when it holds one, else its action brought
// into the fifteen, as the mouse's rows show theirs.
ActionIndex shownAction(const GestureSlots& slots, std::size_t index) {
    if (const std::optional<SlotExtra> extra = slots.extraAt(index)) {
        return action::index(extra->action);
    }
    return std::clamp(actionAt(slots, index), ActionIndex{0}, action::count - 1);
}

// Slots 0 to 3 are the clicks with one to four fingers, 4 to 7 the taps.
std::string gestureName(std::int64_t slot) {
    constexpr std::int64_t perKind = 4;
    const std::int64_t fingers = slot % perKind + 1;
    return slot >= slot::forTap(1) ? L("gesture.tap", fingers) : L("gesture.click", fingers);
}

}  // namespace

std::string deviceTitle(const TouchDevice& device) {
    return L("devices.entry", device.name.empty() ? kindName(device.kind) : device.name,
             stateName(device));
}

std::vector<DeviceLine> deviceLines(const std::vector<TouchDevice>& devices,
                                    const std::function<bool(const TouchDevice&)>& uses) {
    std::vector<DeviceLine> lines;
    lines.reserve(devices.size());
    for (const TouchDevice& device : devices) {
        const bool mouse = device.kind == TouchDeviceKind::magicMouse;
        lines.push_back({
            .device = device.id,
            .title = deviceTitle(device),
            .checked = mouse || (uses && uses(device)),
            .enabled = !mouse,
            .toolTip = L("devices.use.help"),
        });
    }
    return lines;
}

std::vector<TrackpadRow> trackpadRows(const GestureSlots& slots, ExtraActionPerformer* extras) {
    const std::vector<std::string>& names = choices();
    std::vector<ActionMenuEntry> items;
    for (ActionIndex action = 0; action < action::count; ++action) {
        const auto index = static_cast<std::size_t>(action);
        items.push_back({index < names.size() ? names[index] : std::string(), action});
    }
    const std::vector<std::vector<ActionMenuEntry>> groups = extraActionMenu();
    std::vector<TrackpadRow> rows;
    for (GestureRow& row : gestureRows()) {
        const auto index = static_cast<std::size_t>(row.slot);
        rows.push_back({
            .heading = std::move(row.heading),
            .fingerLabel = std::move(row.fingerLabel),
            .slot = row.slot,
            .actions = items,
            .extraActionGroups = groups,
            .action = shownAction(slots, index),
            .record = rowRecordButton(actionAt(slots, index), shortcutAt(slots, index),
                                      slots.extraAt(index), extras),
            .conflict = {},
        });
    }
    return rows;
}

std::string systemGestureName(SystemTrackpadGesture gesture) {
    switch (gesture) {
        case SystemTrackpadGesture::tapToClick:
            return L("devices.system.tap_to_click");
        case SystemTrackpadGesture::secondaryClick:
            return L("devices.system.secondary_click");
        case SystemTrackpadGesture::threeFingerDrag:
            return L("devices.system.three_finger_drag");
        case SystemTrackpadGesture::lookUp:
            return L("devices.system.look_up");
        case SystemTrackpadGesture::smartZoom:
            break;
    }
    return L("devices.system.smart_zoom");
}

std::vector<ConflictLine> conflictLines(const GestureSlots& slots,
                                        const TrackpadSettings& settings) {
    std::vector<ConflictLine> lines;
    for (const GestureConflict& conflict : systemGestureConflicts(slots, settings)) {
        lines.push_back({
            .slot = conflict.slot,
            .text =
                L("devices.conflict", gestureName(conflict.slot), systemGestureName(conflict.with)),
            .buttonTitle = L("devices.conflict.open"),
            .tag = static_cast<std::int64_t>(conflict.with),
        });
    }
    return lines;
}

void markConflicts(std::vector<TrackpadRow>& rows, const std::vector<ConflictLine>& conflicts) {
    for (TrackpadRow& row : rows) {
        row.conflict.clear();
        for (const ConflictLine& conflict : conflicts) {
            if (conflict.slot != row.slot) {
                continue;
            }
            if (!row.conflict.empty()) {
                row.conflict += '\n';
            }
            row.conflict += conflict.text;
        }
    }
}

}  // namespace tactora::devicetable
