#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/localization/FormatArgument.h"

namespace tactora {

// Formats a localised text the way the platform's format strings do, for the conversions the
// tables use:
//   "%@"                        the next string argument, as it stands;
//   "%d" "%i" "%ld" "%lld"...   the next integer argument in decimal;
//   "%u" "%lu" "%llu"           the next integer argument's 64 bits read as unsigned;
//   "%2$@", "%1$lld"            the argument at that 1-based position;
//   "%%"                        a percent sign.
// Every other conversion is copied into the result exactly as written, so a hostile or broken
// text cannot read outside the arguments or crash:
//   - a conversion whose argument is missing, or holds the other kind (a string for %d, an
//     integer for %@);
//   - a position of 0 or past the end of the arguments;
//   - unknown letters (%s, %f, %x...), flags, widths, precisions and other length modifiers;
//   - a "%" at the very end of the text;
//   - mixing: the first argument-taking conversion decides between sequential and positional
//     style, and conversions of the other style are copied as written.
// A sequential conversion takes the next position even when it is copied because the argument
// there has the other kind. Arguments that no conversion uses are ignored. The result is valid
// UTF-8 whenever the text and the string arguments are. Pure function; any thread.
std::string formatText(std::string_view format, std::span<const FormatArgument> arguments);

}  // namespace tactora
