#include "core/localization/StringsDictFile.h"

#include <utility>

#include "core/support/FileContents.h"

namespace tactora {

namespace {

constexpr std::string_view formatKey = "NSStringLocalizedFormatKey";
constexpr std::string_view specTypeKey = "NSStringFormatSpecTypeKey";
constexpr std::string_view valueTypeKey = "NSStringFormatValueTypeKey";
constexpr std::string_view pluralRuleType = "NSStringPluralRuleType";

std::string inQuotes(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

// The variable of `key` named `name`, or why it can't be used.
std::optional<PluralFormat::Variable> readVariable(const std::string& key, const std::string& name,
                                                   const PropertyList& value,
                                                   std::vector<std::string>& problems) {
    const std::string where = inQuotes(key) + " variable " + inQuotes(name);
    if (value.string(specTypeKey) != pluralRuleType) {
        problems.push_back(where + " is not a plural rule (NSStringPluralRuleType)");
        return std::nullopt;
    }
    PluralFormat::Variable variable;
    variable.valueType = value.string(valueTypeKey).value_or("");
    for (const auto& [entryKey, entryValue] : value.entries) {
        if (entryKey == specTypeKey || entryKey == valueTypeKey) {
            continue;
        }
        const std::optional<PluralCategory> category = pluralCategoryNamed(entryKey);
        if (!category || entryValue.kind != PropertyList::Kind::string) {
            problems.push_back(where + " has the unknown entry " + inQuotes(entryKey));
            continue;
        }
        variable.forms.emplace(*category, entryValue.text);
    }
    return variable;
}

std::optional<PluralFormat> readEntry(const std::string& key, const PropertyList& value,
                                      std::vector<std::string>& problems) {
    std::optional<std::string> format = value.string(formatKey);
    if (!format) {
        problems.push_back(inQuotes(key) + " has no NSStringLocalizedFormatKey string");
        return std::nullopt;
    }
    PluralFormat entry;
    entry.format = std::move(*format);
    for (const auto& [name, variableValue] : value.entries) {
        if (name == formatKey || variableValue.kind != PropertyList::Kind::dictionary) {
            continue;
        }
        std::optional<PluralFormat::Variable> variable =
            readVariable(key, name, variableValue, problems);
        if (!variable) {
            return std::nullopt;
        }
        entry.variables.emplace(name, std::move(*variable));
    }
    return entry;
}

}  // namespace

StringsDictFile parseStringsDictFile(std::string_view bytes) {
    StringsDictFile file;
    PropertyListDocument document = parsePropertyListXml(bytes);
    if (document.error) {
        file.error = std::move(document.error);
        return file;
    }
    if (!document.root || document.root->kind != PropertyList::Kind::dictionary) {
        file.problems.emplace_back("the property list is not a dictionary");
        return file;
    }
    for (const auto& [key, value] : document.root->entries) {
        if (value.kind != PropertyList::Kind::dictionary) {
            file.problems.push_back(inQuotes(key) + " is not a dictionary");
            continue;
        }
        if (file.entries.contains(key)) {
            file.problems.push_back(inQuotes(key) + " is given more than once");
            continue;
        }
        if (std::optional<PluralFormat> entry = readEntry(key, value, file.problems)) {
            file.entries.emplace(key, std::move(*entry));
        }
    }
    return file;
}

std::optional<StringsDictFile> readStringsDictFile(const std::filesystem::path& path) {
    const std::optional<std::string> bytes = readFileContents(path);
    if (!bytes) {
        return std::nullopt;
    }
    return parseStringsDictFile(*bytes);
}

}  // namespace tactora
