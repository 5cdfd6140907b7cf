#include "core/misfire/MisfireOptions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

#include "core/profiles/Preferences.h"

namespace tactora {

namespace {

constexpr const char* quietKey = "misfire.quietAfterActivity";   // milliseconds
constexpr const char* largeKey = "misfire.ignoreLargeContacts";  // 1
constexpr const char* bandsKey = "misfire.edgeBands";  // "left,right,front,back" in thousandths
constexpr const char* fingertipsKey = "misfire.fingertipsOnly";       // 1
constexpr const char* forgetKey = "misfire.forgetEarlierActivity";    // 1
constexpr const char* fingertipSizeKey = "misfire.largestFingertip";  // hundredths
constexpr const char* drummingKey = "misfire.ignoreDrumming";         // 1

constexpr std::int64_t longestQuiet = 2000;
constexpr std::int64_t widestBand = 500;
constexpr std::int64_t smallestSize = 10;
constexpr std::int64_t largestSize = 10000;

bool isOn(const Preferences& preferences, const char* key) {
    return preferences.integer(key) == 1;
}

void setOn(Preferences& preferences, const char* key, bool on) {
    if (on) {
        preferences.setInteger(key, 1);
    } else {
        preferences.remove(key);
    }
}

std::optional<std::int64_t> integerWithin(const Preferences& preferences, const char* key,
                                          std::int64_t low, std::int64_t high) {
    const std::optional<std::int64_t> value = preferences.integer(key);
    if (!value || *value < low || *value > high) {
        return std::nullopt;
    }
    return value;
}

std::int64_t thousandths(double fraction) {
    return std::llround(fraction * 1000);
}

std::optional<EdgeBands> parseBands(const std::string& text) {
    std::array<double, 4> widths{};
    std::string_view rest = text;
    for (std::size_t index = 0; index < widths.size(); ++index) {
        const std::size_t comma = index + 1 < widths.size() ? rest.find(',') : rest.size();
        if (comma == std::string_view::npos) {
            return std::nullopt;
        }
        std::int64_t value = -1;
        const std::string_view part = rest.substr(0, comma);
        const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), value);
        if (part.empty() || error != std::errc() || end != part.data() + part.size() || value < 0 ||
            value > widestBand) {
            return std::nullopt;
        }
        widths.at(index) = static_cast<double>(value) / 1000;
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    return EdgeBands{widths[0], widths[1], widths[2], widths[3]};
}

std::string formatBands(const EdgeBands& bands) {
    return std::to_string(thousandths(bands.left)) + ',' +
           std::to_string(thousandths(bands.right)) + ',' +
           std::to_string(thousandths(bands.front)) + ',' + std::to_string(thousandths(bands.back));
}

}  // namespace

MisfireOptions MisfireOptions::recommended() {
    MisfireOptions options;
    options.quietAfterActivity = defaultQuietAfterActivity;
    options.edgeBands = defaultEdgeBands;
    options.fingertipsOnly = true;
    options.forgetEarlierActivity = true;
    options.ignoreDrumming = true;
    return options;
}

bool MisfireOptions::anyOn() const {
    return quietAfterActivity || ignoreLargeContacts || edgeBands || fingertipsOnly ||
           forgetEarlierActivity || ignoreDrumming;
}

MisfireOptions MisfireOptions::load(const Preferences& preferences) {
    MisfireOptions options;
    if (const auto quiet = integerWithin(preferences, quietKey, 1, longestQuiet)) {
        options.quietAfterActivity = static_cast<double>(*quiet) / 1000;
    }
    options.ignoreLargeContacts = isOn(preferences, largeKey);
    if (const std::optional<std::string> bands = preferences.string(bandsKey)) {
        options.edgeBands = parseBands(*bands);
    }
    options.fingertipsOnly = isOn(preferences, fingertipsKey);
    options.forgetEarlierActivity = isOn(preferences, forgetKey);
    options.ignoreDrumming = isOn(preferences, drummingKey);
    if (const auto size = integerWithin(preferences, fingertipSizeKey, smallestSize, largestSize)) {
        options.largestFingertip = static_cast<double>(*size) / 100;
    }
    return options;
}

void MisfireOptions::save(Preferences& preferences) const {
    if (quietAfterActivity) {
        preferences.setInteger(quietKey, thousandths(*quietAfterActivity));
    } else {
        preferences.remove(quietKey);
    }
    setOn(preferences, largeKey, ignoreLargeContacts);
    if (edgeBands) {
        preferences.setString(bandsKey, formatBands(*edgeBands));
    } else {
        preferences.remove(bandsKey);
    }
    setOn(preferences, fingertipsKey, fingertipsOnly);
    setOn(preferences, forgetKey, forgetEarlierActivity);
    setOn(preferences, drummingKey, ignoreDrumming);
    if (largestFingertip != defaultLargestFingertip) {
        preferences.setInteger(fingertipSizeKey, std::llround(largestFingertip * 100));
    } else {
        preferences.remove(fingertipSizeKey);
    }
}

}  // namespace tactora
