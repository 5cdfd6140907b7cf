#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/localization/FormatArgument.h"
#include "core/localization/PluralFormat.h"

namespace tactora {

// A variable as a format names it: "%#@name@", or "%n$#@name@" with its argument's position;
// names are made of ASCII letters, digits and "_".
struct VariableReference {
    std::size_t length = 0;  // bytes from the "%" through the closing "@"
    std::optional<std::size_t> position;
    std::string_view name;
};

// The variable reference at the start of `text` (which starts with "%"), if there is one.
std::optional<VariableReference> readVariableReference(std::string_view text);

// A plural format with its variables resolved: an ordinary format and the arguments it takes.
struct ExpandedText {
    std::string format;
    std::vector<FormatArgument> arguments;
};

// Resolves the "%#@name@" variables of `plural.format` (also "%2$#@name@") for `arguments`,
// the way the platform resolves a .stringsdict entry: each variable takes an argument like any
// conversion (the next one, or the one at its position), which must be an integer; its text is
// the "zero" form when the value is 0 and the variable has one, otherwise the form of the
// value's category (`categoryOf`), otherwise the "other" form. That form is formatted with the
// value alone (its "%lld" or "%1$lld" shows the value) and stands in the result as plain text.
// The result's format holds the rest of the conversions unchanged; in a sequential format the
// arguments that variables took are left out of the result's arguments, so the rest still line
// up. Nothing when a variable is not defined, its argument is missing or not an integer, it
// has no form to use, or its style (sequential or positional) differs from the format's first
// conversion's: the caller then falls back to the .strings text. Pure function; any thread.
std::optional<ExpandedText> expandPluralFormat(
    const PluralFormat& plural, std::span<const FormatArgument> arguments,
    const std::function<PluralCategory(std::int64_t)>& categoryOf);

}  // namespace tactora
