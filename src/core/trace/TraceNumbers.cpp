#include "core/trace/TraceNumbers.h"

#include <array>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <locale>
#include <sstream>
#include <utility>

namespace tactora::trace {

namespace {

constexpr int maxPositionDigits = 9;  // enough for every float to read back exactly
constexpr std::size_t longestNumber = 64;
// A number the reader takes has at most this many decimals, and its value has a fixed-point form
// with no more decimals than that which reads back to it: the writer searches that far.
constexpr int maxSecondsDecimals = static_cast<int>(longestNumber) - 2;

bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// Digits from `at`; returns where they stop.
std::size_t skipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && isDigit(text[at])) {
        ++at;
    }
    return at;
}

// [-]digits[.digits][e[+|-]digits]
bool isDecimal(std::string_view text) {
    std::size_t at = 0;
    if (at < text.size() && text[at] == '-') {
        ++at;
    }
    const std::size_t integerStart = at;
    at = skipDigits(text, at);
    if (at == integerStart) {
        return false;
    }
    if (at < text.size() && text[at] == '.') {
        const std::size_t fractionStart = ++at;
        at = skipDigits(text, at);
        if (at == fractionStart) {
            return false;
        }
    }
    if (at < text.size() && text[at] == 'e') {
        ++at;
        if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
            ++at;
        }
        const std::size_t exponentStart = at;
        at = skipDigits(text, at);
        if (at == exponentStart) {
            return false;
        }
    }
    return at == text.size();
}

// A NUL-terminated copy for strtod, or nothing when the text is implausibly long.
std::optional<std::array<char, longestNumber + 1>> terminated(std::string_view text) {
    if (text.empty() || text.size() > longestNumber) {
        return std::nullopt;
    }
    std::array<char, longestNumber + 1> buffer{};
    text.copy(buffer.data(), text.size());
    return buffer;
}

}  // namespace

std::string formatFixed(double value, int decimals) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(decimals) << value;
    return std::move(text).str();
}

std::string formatSeconds(double seconds) {
    std::string text;
    for (int decimals = 1; decimals <= maxSecondsDecimals; ++decimals) {
        text = formatFixed(seconds, decimals);
        if (std::strtod(text.c_str(), nullptr) == seconds) {
            break;
        }
    }
    return text;
}

std::string formatPosition(float position) {
    if (std::isnan(position)) {
        return "nan";
    }
    if (std::isinf(position)) {
        return position > 0 ? "inf" : "-inf";
    }
    std::string text;
    for (int digits = 1; digits <= maxPositionDigits; ++digits) {
        std::ostringstream stream;
        stream.imbue(std::locale::classic());
        stream << std::setprecision(digits) << position;
        text = std::move(stream).str();
        if (std::strtof(text.c_str(), nullptr) == position) {
            break;
        }
    }
    return text;
}

std::optional<double> parseSeconds(std::string_view text) {
    if (text.empty() || text.front() == '-' || text.find('e') != std::string_view::npos ||
        !isDecimal(text)) {
        return std::nullopt;
    }
    const auto buffer = terminated(text);
    if (!buffer) {
        return std::nullopt;
    }
    const double seconds = std::strtod(buffer->data(), nullptr);
    if (!std::isfinite(seconds) || seconds >= latestSeconds) {
        return std::nullopt;
    }
    return seconds;
}

std::optional<float> parsePosition(std::string_view text) {
    if (text == "nan") {
        return std::nanf("");
    }
    if (text == "inf" || text == "-inf") {
        const float infinity = HUGE_VALF;
        return text == "inf" ? infinity : -infinity;
    }
    if (!isDecimal(text)) {
        return std::nullopt;
    }
    const auto buffer = terminated(text);
    if (!buffer) {
        return std::nullopt;
    }
    return std::strtof(buffer->data(), nullptr);
}

}  // namespace tactora::trace
