#include "core/advanced/AdvancedChoices.h"

#include <cmath>

namespace tactora {

namespace {

constexpr double milli = 1000;
constexpr double percent = 100;

// The ranges are those the stored keys accept, so that whatever the sheet keeps is read back
// the same; the refusal texts name them.
const AdvancedFieldSpec quietSpec{
    1, 2000, 0, "advanced.quiet.time", "advanced.unit.ms", "advanced.refused.quiet"};
const AdvancedFieldSpec leftSpec{
    0, 50, 1, "advanced.edge.left", "advanced.unit.percent", "advanced.refused.edge"};
const AdvancedFieldSpec rightSpec{
    0, 50, 1, "advanced.edge.right", "advanced.unit.percent", "advanced.refused.edge"};
const AdvancedFieldSpec frontSpec{
    0, 50, 1, "advanced.edge.front", "advanced.unit.percent", "advanced.refused.edge"};
const AdvancedFieldSpec backSpec{
    0, 50, 1, "advanced.edge.back", "advanced.unit.percent", "advanced.refused.edge"};
const AdvancedFieldSpec sizeSpec{
    0.1, 100, 2, "advanced.fingertip.size", "", "advanced.refused.size"};
const AdvancedFieldSpec shortestSpec{TapThresholds::shortestLow * milli,
                                     TapThresholds::shortestHigh* milli,
                                     0,
                                     "advanced.shortest",
                                     "advanced.unit.ms",
                                     "advanced.refused.shortest"};
const AdvancedFieldSpec longestSpec{TapThresholds::longestLow * milli,
                                    TapThresholds::longestHigh* milli,
                                    0,
                                    "advanced.longest",
                                    "advanced.unit.ms",
                                    "advanced.refused.longest"};
const AdvancedFieldSpec toleranceSpec{TapThresholds::toleranceLow * percent,
                                      TapThresholds::toleranceHigh* percent,
                                      1,
                                      "advanced.tolerance",
                                      "advanced.unit.percent",
                                      "advanced.refused.tolerance"};

constexpr std::string_view orderRefusal = "advanced.refused.order";

double rounded(double value, int digits) {
    const double scale = std::pow(10.0, digits);
    return std::round(value * scale) / scale;
}

// The band of `bands` that `field` edits.
template <typename Bands>
auto& band(Bands& bands, AdvancedField field) {
    switch (field) {
        case AdvancedField::edgeLeft:
            return bands.left;
        case AdvancedField::edgeRight:
            return bands.right;
        case AdvancedField::edgeFront:
            return bands.front;
        default:
            return bands.back;
    }
}

}  // namespace

AdvancedChoices AdvancedChoices::from(const MisfireOptions& options,
                                      const TapThresholds& thresholds) {
    AdvancedChoices choices{.options = options, .thresholds = thresholds};
    if (options.quietAfterActivity) {
        choices.quietTime = *options.quietAfterActivity;
    }
    if (options.edgeBands) {
        choices.edgeBands = *options.edgeBands;
    }
    return choices;
}

const AdvancedFieldSpec& AdvancedChoices::spec(AdvancedField field) {
    switch (field) {
        case AdvancedField::quietTime:
            return quietSpec;
        case AdvancedField::edgeLeft:
            return leftSpec;
        case AdvancedField::edgeRight:
            return rightSpec;
        case AdvancedField::edgeFront:
            return frontSpec;
        case AdvancedField::edgeBack:
            return backSpec;
        case AdvancedField::fingertipSize:
            return sizeSpec;
        case AdvancedField::shortestTap:
            return shortestSpec;
        case AdvancedField::longestTap:
            return longestSpec;
        case AdvancedField::tolerance:
            return toleranceSpec;
    }
    return toleranceSpec;
}

std::optional<AdvancedOption> AdvancedChoices::optionOf(AdvancedField field) {
    switch (field) {
        case AdvancedField::quietTime:
            return AdvancedOption::quietAfterActivity;
        case AdvancedField::edgeLeft:
        case AdvancedField::edgeRight:
        case AdvancedField::edgeFront:
        case AdvancedField::edgeBack:
            return AdvancedOption::edgeBands;
        default:
            return std::nullopt;
    }
}

bool AdvancedChoices::isOn(AdvancedOption option) const {
    switch (option) {
        case AdvancedOption::quietAfterActivity:
            return options.quietAfterActivity.has_value();
        case AdvancedOption::ignoreLargeContacts:
            return options.ignoreLargeContacts;
        case AdvancedOption::edgeBands:
            return options.edgeBands.has_value();
        case AdvancedOption::fingertipsOnly:
            return options.fingertipsOnly;
        case AdvancedOption::forgetEarlierActivity:
            return options.forgetEarlierActivity;
        case AdvancedOption::ignoreDrumming:
            return options.ignoreDrumming;
    }
    return false;
}

void AdvancedChoices::setOption(AdvancedOption option, bool on) {
    switch (option) {
        case AdvancedOption::quietAfterActivity:
            options.quietAfterActivity = on ? std::optional(quietTime) : std::nullopt;
            break;
        case AdvancedOption::ignoreLargeContacts:
            options.ignoreLargeContacts = on;
            break;
        case AdvancedOption::edgeBands:
            options.edgeBands = on ? std::optional(edgeBands) : std::nullopt;
            break;
        case AdvancedOption::fingertipsOnly:
            options.fingertipsOnly = on;
            break;
        case AdvancedOption::forgetEarlierActivity:
            options.forgetEarlierActivity = on;
            break;
        case AdvancedOption::ignoreDrumming:
            options.ignoreDrumming = on;
            break;
    }
}

double AdvancedChoices::value(AdvancedField field) const {
    double shown = 0;
    switch (field) {
        case AdvancedField::quietTime:
            shown = quietTime * milli;
            break;
        case AdvancedField::edgeLeft:
        case AdvancedField::edgeRight:
        case AdvancedField::edgeFront:
        case AdvancedField::edgeBack:
            shown = band(edgeBands, field) * percent;
            break;
        case AdvancedField::fingertipSize:
            shown = options.largestFingertip;
            break;
        case AdvancedField::shortestTap:
            shown = thresholds.shortest * milli;
            break;
        case AdvancedField::longestTap:
            shown = thresholds.longest * milli;
            break;
        case AdvancedField::tolerance:
            shown = thresholds.tolerance * percent;
            break;
    }
    return rounded(shown, spec(field).fractionDigits);
}

std::optional<std::string_view> AdvancedChoices::setValue(AdvancedField field, double shown) {
    const AdvancedFieldSpec& limits = spec(field);
    const double value = std::isfinite(shown) ? rounded(shown, limits.fractionDigits) : shown;
    if (!std::isfinite(value) || value < rounded(limits.low, limits.fractionDigits) ||
        value > rounded(limits.high, limits.fractionDigits)) {
        return limits.refusedKey;
    }
    TapThresholds changed = thresholds;
    switch (field) {
        case AdvancedField::quietTime:
            quietTime = value / milli;
            if (options.quietAfterActivity) {
                options.quietAfterActivity = quietTime;
            }
            return std::nullopt;
        case AdvancedField::edgeLeft:
        case AdvancedField::edgeRight:
        case AdvancedField::edgeFront:
        case AdvancedField::edgeBack:
            band(edgeBands, field) = value / percent;
            if (options.edgeBands) {
                options.edgeBands = edgeBands;
            }
            return std::nullopt;
        case AdvancedField::fingertipSize:
            options.largestFingertip = value;
            return std::nullopt;
        case AdvancedField::shortestTap:
            changed.shortest = value / milli;
            break;
        case AdvancedField::longestTap:
            changed.longest = value / milli;
            break;
        case AdvancedField::tolerance:
            changed.tolerance = value / percent;
            break;
    }
    if (!changed.isValid()) {
        return orderRefusal;
    }
    thresholds = changed;
    return std::nullopt;
}

}  // namespace tactora
