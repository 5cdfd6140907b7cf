#pragma once

#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "core/localization/FormatArgument.h"
#include "core/localization/StringTable.h"

namespace tactora {

// Installs the table that L() reads; null means no table, so every key shows as itself.
// Called at start-up, before any text is looked up, and by tests.
void setStringTable(std::shared_ptr<const StringTable> table);

// Looks `key` up and, when there are arguments, formats the text with them ("%@" takes a
// string, "%d" and its kin an integer, "%1$@" picks by position, "%%" is a percent sign). A
// missing key comes back as the key itself. Without arguments the text is returned as it
// stands, conversions and all. Main thread only.
std::string localize(std::string_view key, std::span<const FormatArgument> arguments);

inline std::string L(std::string_view key) { return localize(key, {}); }

template <typename... Arguments>
    requires(sizeof...(Arguments) > 0)
std::string L(std::string_view key, const Arguments&... arguments) {
    const FormatArgument list[] = {FormatArgument(arguments)...};
    return localize(key, list);
}

}  // namespace tactora
