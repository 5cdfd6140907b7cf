#pragma once

#include <optional>
#include <string_view>

#include "core/gestures/TapThresholds.h"
#include "core/misfire/MisfireOptions.h"
#include "core/platform/AdvancedSheet.h"

namespace tactora {

// What a number field of the Advanced sheet accepts, in the units it shows, and the keys of its
// texts.
struct AdvancedFieldSpec {
    double low = 0;
    double high = 0;
    int fractionDigits = 0;
    std::string_view labelKey;
    std::string_view unitKey;     // empty for none
    std::string_view refusedKey;  // says what the field accepts
};

// The user's options against accidents and tap limits as the Advanced sheet edits them, with
// the values shown for options that are off, so that switching one on uses what the user set.
// Every change is checked before it is kept: a value out of its field's range, or a shortest tap
// not shorter than the longest, is refused and changes nothing. Pure; any thread.
struct AdvancedChoices {
    MisfireOptions options;
    TapThresholds thresholds;
    double quietTime = MisfireOptions::defaultQuietAfterActivity;  // seconds
    EdgeBands edgeBands = MisfireOptions::defaultEdgeBands;

    // The choices that `options` and `thresholds` are, their values shown for options that are
    // off being the defaults.
    static AdvancedChoices from(const MisfireOptions& options, const TapThresholds& thresholds);

    static const AdvancedFieldSpec& spec(AdvancedField field);
    // The option a field belongs to; nothing for the fingertip size and the tap's limits.
    static std::optional<AdvancedOption> optionOf(AdvancedField field);

    bool isOn(AdvancedOption option) const;
    void setOption(AdvancedOption option, bool on);

    // The value `field` shows, in its units.
    double value(AdvancedField field) const;
    // Sets `field` to `shown` (in its units, rounded to the digits it shows). Nothing when it
    // was kept; otherwise the key of the text that says why not, and nothing changed.
    std::optional<std::string_view> setValue(AdvancedField field, double shown);

    bool operator==(const AdvancedChoices&) const = default;
};

}  // namespace tactora
