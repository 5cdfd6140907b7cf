#include "core/localization/Localizer.h"

#include <optional>
#include <utility>

#include "core/localization/Formatter.h"

namespace tactora {

namespace {

// Read and written on the main thread only, so it needs no lock.
std::shared_ptr<const StringTable>& installedTable() {
    static std::shared_ptr<const StringTable> table;
    return table;
}

}  // namespace

void setStringTable(std::shared_ptr<const StringTable> table) {
    installedTable() = std::move(table);
}

std::string localize(std::string_view key, std::span<const FormatArgument> arguments) {
    const std::shared_ptr<const StringTable>& table = installedTable();
    std::optional<std::string> text = table ? table->lookup(key) : std::nullopt;
    std::string found = text ? std::move(*text) : std::string(key);
    if (arguments.empty()) {
        return found;
    }
    return formatText(found, arguments);
}

}  // namespace tactora
