#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/ActionMenuEntry.h"
#include "core/platform/RecordButtonState.h"

namespace tactora {

// One touch device of the settings window's list: a checkbox titled with the device and its
// state, ticked while the device is used for gestures.
struct DeviceLine {
    std::uint64_t device = 0;  // the device's id, which the checkbox reports back
    std::string title;
    bool checked = false;
    bool enabled = true;  // false where the box cannot be changed (the Magic Mouse's)
    std::string toolTip;

    bool operator==(const DeviceLine&) const = default;
};

// One row of the trackpads' gesture table, built like the Magic Mouse's rows.
struct TrackpadRow {
    std::optional<std::string> heading;  // the section heading shown above the row, if any
    std::string fingerLabel;
    std::int64_t slot = 0;  // the row's gesture slot, also its controls' tag
    // The pop-up's items, top to bottom, each tagged with its action: first the fifteen...
    std::vector<ActionMenuEntry> actions;
    // ...then the further actions, one list per group, each after a separator.
    std::vector<std::vector<ActionMenuEntry>> extraActionGroups;
    std::int64_t action = 0;  // the item selected
    RecordButtonState record;

    bool operator==(const TrackpadRow&) const = default;
};

// A trackpad gesture that the same touch also makes a gesture of the system's own, and the
// button that opens the system's settings where that one is switched off.
struct ConflictLine {
    std::string text;
    std::string buttonTitle;
    std::int64_t tag = 0;  // what the button reports back

    bool operator==(const ConflictLine&) const = default;
};

// What the settings window shows of the touch devices: the list of devices, and, once a
// trackpad has been seen, the choice between the Magic Mouse's gesture rows and the trackpads'
// (with a hint and the conflicts with the system's gestures under them).
struct DeviceTableContent {
    std::string devicesTitle;
    std::vector<DeviceLine> devices;

    bool showsSurfaceChoice = false;
    std::string mouseSurface;
    std::string trackpadSurface;
    std::string surfaceHelp;
    // The trackpads' rows are shown in place of the Magic Mouse's.
    bool showsTrackpadRows = false;

    std::vector<TrackpadRow> rows;
    std::string hint;
    std::vector<ConflictLine> conflicts;

    bool operator==(const DeviceTableContent&) const = default;
};

}  // namespace tactora
