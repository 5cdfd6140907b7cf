#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tactora {

// The options against accidental gestures, as the Advanced sheet's checkboxes name them.
enum class AdvancedOption : std::uint8_t {
    quietAfterActivity,
    ignoreLargeContacts,
    edgeBands,
    fingertipsOnly,
    forgetEarlierActivity,
    ignoreDrumming,
};

// The Advanced sheet's number fields.
enum class AdvancedField : std::uint8_t {
    quietTime,  // milliseconds
    edgeLeft,   // percent of the surface, each edge band
    edgeRight,
    edgeFront,
    edgeBack,
    fingertipSize,  // the sensor's own size units
    shortestTap,    // milliseconds
    longestTap,     // milliseconds
    tolerance,      // percent of the surface
};

// One number field: its label, the value it shows, and what its formatter accepts.
struct AdvancedValue {
    AdvancedField field = AdvancedField::quietTime;
    std::string label;
    std::string unit;  // shown after the field; empty for none
    double value = 0;
    double low = 0;
    double high = 0;
    int fractionDigits = 0;
    bool enabled = true;  // off while the option it belongs to is off

    bool operator==(const AdvancedValue&) const = default;
};

// A checkbox (when the group has one) and the fields that belong to it, laid out together.
struct AdvancedGroup {
    std::optional<AdvancedOption> option;
    std::string title;  // the checkbox's title, or the group's heading without a checkbox
    bool on = false;
    std::vector<AdvancedValue> values;

    bool operator==(const AdvancedGroup&) const = default;
};

// One line of the try area: what a touch became, in words.
struct TryLine {
    bool accepted = false;  // the touch became a gesture
    std::string text;

    bool operator==(const TryLine&) const = default;
};

// Everything the Advanced sheet shows, decided by the core: the options against accidents with
// their values, the tap's limits, the buttons and the try area. The shell lays the groups out in
// order and draws exactly this.
struct AdvancedSheet {
    std::string title;
    std::string explanation;
    std::vector<AdvancedGroup> groups;
    // Why the last change was refused, in words; empty when it was not.
    std::string problem;
    std::string recommendedButton;
    std::string restoreButton;
    std::string doneButton;
    std::string tryTitle;
    std::string tryEmpty;        // shown while there are no lines
    std::vector<TryLine> tries;  // newest first

    bool operator==(const AdvancedSheet&) const = default;
};

}  // namespace tactora
