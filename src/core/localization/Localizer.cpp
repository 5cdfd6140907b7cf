#include "core/localization/Localizer.h"

#include <optional>
#include <utility>

#include "core/localization/Formatter.h"
#include "core/localization/PluralExpansion.h"
#include "core/text/TextHandling.h"

namespace tactora {

namespace {

// Read and written on the main thread only, so it needs no lock.
std::shared_ptr<const StringTable>& installedTable() {
    static std::shared_ptr<const StringTable> table;
    return table;
}

// The key's plural entry resolved for `arguments`, when the table has one that resolves.
std::optional<ExpandedText> pluralText(const StringTable& table, std::string_view key,
                                       std::span<const FormatArgument> arguments) {
    const std::optional<PluralFormat> plural = table.pluralFormat(key);
    if (!plural) {
        return std::nullopt;
    }
    const std::string language = table.language().value_or("");
    return expandPluralFormat(*plural, arguments, [&language](std::int64_t value) {
        return textHandling().pluralCategory(language, value);
    });
}

}  // namespace

void setStringTable(std::shared_ptr<const StringTable> table) {
    installedTable() = std::move(table);
}

std::string localize(std::string_view key, std::span<const FormatArgument> arguments) {
    const std::shared_ptr<const StringTable>& table = installedTable();
    if (table && !arguments.empty()) {
        if (const std::optional<ExpandedText> plural = pluralText(*table, key, arguments)) {
            return formatText(plural->format, plural->arguments);
        }
    }
    std::optional<std::string> text = table ? table->lookup(key) : std::nullopt;
    std::string found = text ? std::move(*text) : std::string(key);
    if (arguments.empty()) {
        return found;
    }
    return formatText(found, arguments);
}

}  // namespace tactora
