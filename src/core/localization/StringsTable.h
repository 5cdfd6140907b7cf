#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/localization/StringTable.h"
#include "core/localization/StringsDictFile.h"
#include "core/localization/StringsFile.h"

namespace tactora {

// A string table held in memory: what a .strings file (and the .stringsdict beside it) holds,
// or maps a test builds.
// Immutable once built; lookups from any thread.
class StringsTable final : public StringTable {
  public:
    using Entries = std::map<std::string, std::string, std::less<>>;
    using PluralEntries = std::map<std::string, PluralFormat, std::less<>>;

    explicit StringsTable(Entries entries);

    // With plural entries, chosen by the plural rules of `language`.
    StringsTable(Entries entries, PluralEntries plurals, std::optional<std::string> language);

    // The entries of a parsed file; those read before a parse error count, the rest is lost.
    explicit StringsTable(const StringsFile& file);

    // The table of the .strings file at `path`; null when the file can't be read.
    static std::shared_ptr<const StringsTable> load(const std::filesystem::path& path);

    // The table of a localisation's folder ("<resources>/pt-BR.lproj"): its Localizable.strings
    // and, when present and readable, the plural entries of its Localizable.stringsdict, for
    // `language`. Null when the .strings file can't be read.
    static std::shared_ptr<const StringsTable> loadLocalization(const std::filesystem::path& folder,
                                                                std::string language);

    std::optional<std::string> lookup(std::string_view key) const override;
    std::optional<PluralFormat> pluralFormat(std::string_view key) const override;
    std::optional<std::string> language() const override { return language_; }

    const Entries& entries() const { return entries_; }

  private:
    Entries entries_;
    PluralEntries plurals_;
    std::optional<std::string> language_;
};

}  // namespace tactora
