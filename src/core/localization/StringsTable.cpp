#include "core/localization/StringsTable.h"

#include <utility>

namespace tactora {

StringsTable::StringsTable(Entries entries) : entries_(std::move(entries)) {}

StringsTable::StringsTable(Entries entries, PluralEntries plurals,
                           std::optional<std::string> language)
    : entries_(std::move(entries)), plurals_(std::move(plurals)), language_(std::move(language)) {}

StringsTable::StringsTable(const StringsFile& file) : entries_(file.entries) {}

std::shared_ptr<const StringsTable> StringsTable::load(const std::filesystem::path& path) {
    const std::optional<StringsFile> file = readStringsFile(path);
    if (!file) {
        return nullptr;
    }
    return std::make_shared<const StringsTable>(*file);
}

std::shared_ptr<const StringsTable> StringsTable::loadLocalization(
    const std::filesystem::path& folder, std::string language) {
    const std::optional<StringsFile> file = readStringsFile(folder / "Localizable.strings");
    if (!file) {
        return nullptr;
    }
    std::optional<StringsDictFile> plurals =
        readStringsDictFile(folder / "Localizable.stringsdict");
    return std::make_shared<const StringsTable>(
        file->entries, plurals ? std::move(plurals->entries) : PluralEntries{},
        std::move(language));
}

std::optional<PluralFormat> StringsTable::pluralFormat(std::string_view key) const {
    const auto found = plurals_.find(key);
    if (found == plurals_.end()) {
        return std::nullopt;
    }
    return found->second;
}

std::optional<std::string> StringsTable::lookup(std::string_view key) const {
    const auto found = entries_.find(key);
    if (found == entries_.end()) {
        return std::nullopt;
    }
    return found->second;
}

}  // namespace tactora
