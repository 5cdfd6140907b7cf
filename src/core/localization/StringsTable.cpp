#include "core/localization/StringsTable.h"

#include <utility>

namespace tactora {

StringsTable::StringsTable(Entries entries) : entries_(std::move(entries)) {}

StringsTable::StringsTable(const StringsFile& file) : entries_(file.entries) {}

std::shared_ptr<const StringsTable> StringsTable::load(const std::filesystem::path& path) {
    const std::optional<StringsFile> file = readStringsFile(path);
    if (!file) {
        return nullptr;
    }
    return std::make_shared<const StringsTable>(*file);
}

std::optional<std::string> StringsTable::lookup(std::string_view key) const {
    const auto found = entries_.find(key);
    if (found == entries_.end()) {
        return std::nullopt;
    }
    return found->second;
}

}  // namespace tactora
