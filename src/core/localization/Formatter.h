#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/localization/FormatArgument.h"

namespace tactora {

// Formats a localised text the way the platform's format strings (NSString and CFString, on
// arm64 macOS) do, for every conversion a translation may use:
//   "%@"                 the next string argument;
//   "%d" "%i" "%D"       the next integer argument in decimal;
//   "%u" "%U"            ... read as unsigned;
//   "%x" "%X" "%o" "%O"  ... read as unsigned, in lower- or upper-case hexadecimal, or octal;
//   "%2$@", "%1$lld"     the argument at that 1-based position;
//   "%%"                 a percent sign.
// Integer conversions read as many bits of the 64-bit argument as their length modifier says:
// none 32 ("%d" shows 4294967297 as 1), "hh" 8, "h" 16, "l", "ll", "q" and "z" 64. The flags
// "-" (align left), "+" and " " (sign of a signed number), "0" (fill with zeros) and "#" (a
// leading 0 in octal, 0x or 0X in hexadecimal), the width and the precision (the least number of
// digits; the most characters of a string) work as in printf. A string's width and precision
// count UTF-16 code units, as the platform's strings do, but never cut inside a character. "*"
// takes the width or precision from the next integer argument (read as an int; a negative width
// aligns left, a negative precision is none), "*n$" from the one at n in a positional text.
// Every other conversion is copied into the result exactly as written, so a hostile or broken
// text cannot read outside the arguments or crash:
//   - a conversion whose argument (or "*" argument) is missing, or holds the other kind (a
//     string for %d, an integer for %@ or "*");
//   - a position of 0 or past the end of the arguments;
//   - other letters (%s, %f, %c...), the "'" flag, other length modifiers (j, t, L, or any on
//     %@), and a width or precision above FormatConversion::maxFieldSize;
//   - a "%" at the very end of the text;
//   - mixing: the first argument-taking conversion decides between sequential and positional
//     style, and conversions of the other style are copied as written.
// A sequential conversion takes its positions ("*" arguments first) even when it is copied
// because an argument there has the other kind. Arguments that no conversion uses are ignored.
// The user's locale is not consulted: none of these conversions depends on it. The result is
// valid UTF-8 whenever the text and the string arguments are. Pure function; any thread.
std::string formatText(std::string_view format, std::span<const FormatArgument> arguments);

}  // namespace tactora
