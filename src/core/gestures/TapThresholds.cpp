#include "core/gestures/TapThresholds.h"

#include <cmath>
#include <cstdint>
#include <optional>

#include "core/profiles/Preferences.h"

namespace tactora {

namespace {

constexpr const char* shortestKey = "tap.shortest";    // milliseconds
constexpr const char* longestKey = "tap.longest";      // milliseconds
constexpr const char* toleranceKey = "tap.tolerance";  // thousandths of the surface

std::int64_t thousandths(double value) {
    return std::llround(value * 1000);
}

double readThousandths(const Preferences& preferences, const char* key, double fallback) {
    const std::optional<std::int64_t> value = preferences.integer(key);
    return value ? static_cast<double>(*value) / 1000 : fallback;
}

void writeThousandths(Preferences& preferences, const char* key, double value, double fallback) {
    if (thousandths(value) == thousandths(fallback)) {
        preferences.remove(key);
    } else {
        preferences.setInteger(key, thousandths(value));
    }
}

}  // namespace

bool TapThresholds::isDefault() const {
    return *this == TapThresholds{};
}

bool TapThresholds::isValid() const {
    return shortest >= shortestLow && shortest <= shortestHigh && longest >= longestLow &&
           longest <= longestHigh && tolerance >= toleranceLow && tolerance <= toleranceHigh &&
           shortest < longest;
}

TapThresholds TapThresholds::load(const Preferences& preferences) {
    const TapThresholds defaults;
    const TapThresholds loaded{readThousandths(preferences, shortestKey, defaults.shortest),
                               readThousandths(preferences, longestKey, defaults.longest),
                               readThousandths(preferences, toleranceKey, defaults.tolerance)};
    return loaded.isValid() ? loaded : defaults;
}

bool TapThresholds::save(Preferences& preferences) const {
    if (!isValid()) {
        return false;
    }
    const TapThresholds defaults;
    writeThousandths(preferences, shortestKey, shortest, defaults.shortest);
    writeThousandths(preferences, longestKey, longest, defaults.longest);
    writeThousandths(preferences, toleranceKey, tolerance, defaults.tolerance);
    return true;
}

}  // namespace tactora
