#pragma once

#include <optional>
#include <string>
#include <string_view>

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

  protected:
    StringTable(const StringTable&) = default;
    StringTable& operator=(const StringTable&) = default;
    StringTable(StringTable&&) = default;
    StringTable& operator=(StringTable&&) = default;
};

}  // namespace tactora
