#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/profiles/Preferences.h"

namespace tactora {

// Reading a preference as an integer the way the system's defaults database does
// (-[NSUserDefaults integerForKey:]), for values written by hand with `defaults write`, which
// stores "13" as text. Pure functions; the thread of the preferences passed in.

// The integer a text stands for, as NSString's integerValue reads it: leading white space
// (space, tab, line feed, carriage return, vertical tab, form feed) is skipped, then an optional
// "+" or "-" and decimal digits are read up to the first other character ("12abc" is 12, "3.7"
// is 3, "1e2" is 1). A text that does not begin so (after the white space) is 0, and a number
// beyond the 64-bit range reads as the nearest end of it.
std::int64_t integerFromText(std::string_view text);

// The value of `key` as an integer: a stored integer as it is, a stored text through
// integerFromText, and 0 for a missing key, bytes, or any other text.
std::int64_t defaultsInteger(const Preferences& preferences, const std::string& key);

}  // namespace tactora
