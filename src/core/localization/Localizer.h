#pragma once

#include <array>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "core/localization/FormatArgument.h"
#include "core/localization/StringTable.h"

namespace tactora {

// Installs the process-wide table that L() reads; null means no table, so every key shows as
// itself. Called at start-up, before any text is looked up, and by tests. Main thread only.
void setStringTable(std::shared_ptr<const StringTable> table);

// Looks `key` up and, when there are arguments, formats the text with them (see formatText:
// "%@" takes a string, "%d" and its kin an integer, "%1$@" picks by position, "%%" is a
// percent sign). With arguments, a plural entry of the table (its .stringsdict) comes first:
// its variables are resolved by the installed text handling's plural rules for the table's
// language (see expandPluralFormat); when the table has none for the key, or it does not
// resolve, the plain text is used. A missing key, or no table at all, gives the key itself,
// formatted in the same way. Without arguments the plain text is returned as it stands,
// conversions and all. Main thread only.
std::string localize(std::string_view key, std::span<const FormatArgument> arguments);

inline std::string L(std::string_view key) {
    return localize(key, {});
}

// L("finger.many", 3), L("permissions", L("ok"), L("pending")): integers and strings are
// passed in the order the key's text expects them.
template <typename... Arguments>
requires(sizeof...(Arguments) > 0) std::string
    L(std::string_view key, const Arguments&... arguments) {
    const std::array<FormatArgument, sizeof...(Arguments)> list = {
        makeFormatArgument(arguments)...};
    return localize(key, list);
}

}  // namespace tactora
