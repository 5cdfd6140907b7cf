#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/localization/PluralFormat.h"

namespace tactora {

// The localised texts of one language, by key. Implementations: the main bundle's table on
// macOS, a parsed .strings file elsewhere (StringsTable), a map in tests. Called on the main
// thread.
class StringTable {
  public:
    StringTable() = default;
    virtual ~StringTable() = default;

    // The text for `key`, or nothing when the table has no entry for it.
    virtual std::optional<std::string> lookup(std::string_view key) const = 0;

    // The plural entry for `key` from the table's .stringsdict, which L prefers when it has
    // arguments; lookup's text stays the fallback. Nothing by default.
    virtual std::optional<PluralFormat> pluralFormat(std::string_view /*key*/) const {
        return std::nullopt;
    }

    // The localisation whose plural rules choose among the plural forms ("pt-BR"); nothing by
    // default, which leaves every value to the "other" form (or "zero" for 0).
    virtual std::optional<std::string> language() const { return std::nullopt; }

  protected:
    StringTable(const StringTable&) = default;
    StringTable& operator=(const StringTable&) = default;
    StringTable(StringTable&&) = default;
    StringTable& operator=(StringTable&&) = default;
};

}  // namespace tactora
