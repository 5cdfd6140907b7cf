#include "core/profiles/DefaultsInteger.h"

#include <limits>
#include <optional>

namespace tactora {

namespace {

bool isLeadingSpace(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r' ||
           character == '\v' || character == '\f';
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

}  // namespace

std::int64_t integerFromText(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && isLeadingSpace(text[at])) {
        ++at;
    }
    bool negative = false;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
        negative = text[at] == '-';
        ++at;
    }
    // Accumulated towards the sign's own end of the range, so that the most negative value,
    // whose magnitude has no positive counterpart, is read exactly.
    constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();
    constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
    std::int64_t value = 0;
    for (; at < text.size() && isDigit(text[at]); ++at) {
        const int digit = text[at] - '0';
        if (negative) {
            if (value < (lowest + digit) / 10) {
                return lowest;
            }
            value = value * 10 - digit;
        } else {
            if (value > (highest - digit) / 10) {
                return highest;
            }
            value = value * 10 + digit;
        }
    }
    return value;
}

std::int64_t defaultsInteger(const Preferences& preferences, const std::string& key) {
    if (const std::optional<std::int64_t> integer = preferences.integer(key)) {
        return *integer;
    }
    if (const std::optional<std::string> text = preferences.string(key)) {
        return integerFromText(*text);
    }
    return 0;
}

}  // namespace tactora
