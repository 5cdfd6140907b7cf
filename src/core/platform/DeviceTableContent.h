#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/ActionMenuEntry.h"
#include "core/platform/RecordButtonState.h"

namespace tactora {

// One touch device of the Touch Surfaces sheet's list: a checkbox titled with the device and its
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
    // What the row's gesture competes with among the system's own gestures, a sentence per line;
    // empty when nothing. The row then shows a warning sign that tells it and opens the sheet.
    std::string conflict;

    bool operator==(const TrackpadRow&) const = default;
};

// A trackpad gesture that the same touch also makes a gesture of the system's own, and the
// button that opens the system's settings where that one is switched off.
struct ConflictLine {
    std::int64_t slot = 0;  // the trackpad slot that competes
    std::string text;
    std::string buttonTitle;
    std::int64_t tag = 0;  // what the button reports back

    bool operator==(const ConflictLine&) const = default;
};

// What the settings window shows of the touch devices. Once a trackpad has been seen, two
// controls appear above the gesture table, on the line of its first heading: a button that opens
// the Touch Surfaces sheet and the choice between the Magic Mouse's gesture rows and the
// trackpads'. The sheet lists the devices, explains the trackpads' one- and two-finger gestures
// and lists the conflicts with the system's gestures. The window keeps its size either way.
struct DeviceTableContent {
    bool showsSurfaceChoice = false;
    std::string openTitle;  // the button that opens the sheet
    std::string mouseSurface;
    std::string trackpadSurface;
    std::string surfaceHelp;
    // The trackpads' rows are shown in place of the Magic Mouse's.
    bool showsTrackpadRows = false;
    std::vector<TrackpadRow> rows;

    // The sheet.
    std::string devicesTitle;
    std::vector<DeviceLine> devices;
    std::string hint;
    std::vector<ConflictLine> conflicts;
    std::string doneTitle;

    bool operator==(const DeviceTableContent&) const = default;
};

}  // namespace tactora
