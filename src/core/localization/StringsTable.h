#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/localization/StringTable.h"
#include "core/localization/StringsFile.h"

namespace tactora {

// A string table held in memory: what a .strings file holds, or a map a test builds.
// Immutable once built; lookups from any thread.
class StringsTable final : public StringTable {
  public:
    using Entries = std::map<std::string, std::string, std::less<>>;

    explicit StringsTable(Entries entries);

    // The entries of a parsed file; those read before a parse error count, the rest is lost.
    explicit StringsTable(const StringsFile& file);

    // The table of the .strings file at `path`; null when the file can't be read.
    static std::shared_ptr<const StringsTable> load(const std::filesystem::path& path);

    std::optional<std::string> lookup(std::string_view key) const override;

    const Entries& entries() const { return entries_; }

  private:
    Entries entries_;
};

}  // namespace tactora
