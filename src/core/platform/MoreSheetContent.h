#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/ActionMenuEntry.h"
#include "core/platform/RecordButtonState.h"

namespace tactora {

// One gesture of the More Gestures sheet: its label, its action pop-up and its record button.
struct MoreSheetRow {
    // Shown before the label on the first row of a group of rows (the finger count of swipes).
    std::optional<std::string> group;
    std::string label;
    std::int64_t slot = 0;  // the gesture's slot, also its controls' tag
    // The pop-up's items, top to bottom, each tagged with its action: first the fifteen...
    std::vector<ActionMenuEntry> actions;
    // ...then the further actions, one list per group, each after a separator, as in the
    // gesture rows' pop-ups.
    std::vector<std::vector<ActionMenuEntry>> extraActionGroups;
    std::int64_t action = 0;  // the item selected
    RecordButtonState record;

    bool operator==(const MoreSheetRow&) const = default;
};

// A section of the sheet: a heading over its rows, and in the section of region taps the
// control of the top band's depth after them.
struct MoreSheetSection {
    std::string heading;
    std::vector<MoreSheetRow> rows;
    bool showsTopBand = false;

    bool operator==(const MoreSheetSection&) const = default;
};

// The top band's depth, as a share of the surface's length: a slider from `smallest` to
// `largest` that stops only at multiples of `step` from `smallest`.
struct MoreSheetTopBand {
    std::string label;
    double value = 0;
    double smallest = 0;
    double largest = 0;
    double step = 0;

    bool operator==(const MoreSheetTopBand&) const = default;
};

// The More Gestures sheet of the active profile: the gestures beyond the eight, each with an
// action pop-up like the gesture rows' and a record button, in sections, and a Done button.
struct MoreSheetContent {
    std::string title;
    std::string intro;
    std::vector<MoreSheetSection> sections;
    MoreSheetTopBand topBand;
    std::string doneButton;

    bool operator==(const MoreSheetContent&) const = default;
};

}  // namespace tactora
