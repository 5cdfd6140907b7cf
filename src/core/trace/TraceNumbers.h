#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tactora::trace {

// Numbers in a trace are written in the shortest decimal form that reads back to exactly the
// same value, so that a replay sees the very numbers the live program saw. They are written and
// read in the C locale's form (a point before the fraction), which the program never changes.
// Pure; any thread.

// `value` with exactly `decimals` digits after the point, e.g. "1042.015".
std::string formatFixed(double value, int decimals);

// Time stamps are below this (2^53 seconds, where doubles stop holding every whole second), so
// that each one's fixed-point form stays short.
inline constexpr double latestSeconds = 9007199254740992.0;

// A time stamp: fixed-point seconds without an exponent, with the fewest decimals (at least one)
// that read back to exactly `seconds`, e.g. "1042.0153". Every value parseSeconds() returns is
// written so that parseSeconds() takes the text and returns that value again.
std::string formatSeconds(double seconds);

// A contact position, one of the sensor's 32-bit values: e.g. "0.5", "1e-05", "nan", "-inf".
std::string formatPosition(float position);

// Seconds as formatSeconds() writes them: digits, optionally a point and more digits, at most
// 64 characters, not negative and below latestSeconds. Nothing for anything else.
std::optional<double> parseSeconds(std::string_view text);

// A position as formatPosition() writes it (a decimal number with an optional sign and
// exponent, or "nan", "inf", "-inf"). Nothing for anything else.
std::optional<float> parsePosition(std::string_view text);

}  // namespace tactora::trace
