#include "core/localization/LocalizationAudit.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "core/localization/FormatConversion.h"
#include "core/localization/LocalizationKeys.h"
#include "core/localization/PluralExpansion.h"

namespace tactora {

namespace {

std::string inQuotes(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

std::string written(std::string_view text, const FormatConversion& conversion) {
    return inQuotes(text.substr(conversion.offset, conversion.length));
}

std::optional<std::string> auditUnformatted(std::string_view text) {
    for (const FormatConversion& conversion : conversionsIn(text)) {
        if (conversion.type != ConversionType::unsupported) {
            return "shows " + written(text, conversion) +
                   " as written: this key takes no arguments, so its text is not formatted";
        }
    }
    return std::nullopt;
}

// An integer argument has 64 bits and a sign: "%hd" and "%hhd" would cut it short.
bool kindMatches(const FormatConversion& conversion, ArgumentKind kind) {
    if (kind == ArgumentKind::string) {
        return conversion.type == ConversionType::string;
    }
    return conversion.type == ConversionType::signedInteger &&
           argumentBits(conversion.lengthModifier) >= 32;
}

// Checks one argument conversion that refers to `index` (0-based) and marks it as shown.
std::optional<std::string> auditReference(std::string_view text, const FormatConversion& conversion,
                                          std::size_t index, std::span<const KeyArgument> arguments,
                                          std::vector<bool>& referenced) {
    const std::string number = std::to_string(index + 1);
    if (index >= arguments.size()) {
        return written(text, conversion) + " refers to argument " + number + ", but the key has " +
               std::to_string(arguments.size());
    }
    const KeyArgument& argument = arguments[index];
    if (!argument.shown) {
        return written(text, conversion) + " shows argument " + number +
               ", which this key's text must not show";
    }
    if (!kindMatches(conversion, argument.kind)) {
        const std::string_view expected =
            argument.kind == ArgumentKind::string ? "a string (%@)" : "a signed integer (%lld)";
        return written(text, conversion) + " does not fit argument " + number + ", " +
               std::string(expected);
    }
    referenced[index] = true;
    return std::nullopt;
}

std::optional<std::string> auditFormatted(const LocalizationKey& key, std::string_view text) {
    const std::span<const KeyArgument> arguments = key.arguments();
    std::vector<bool> referenced(arguments.size(), false);
    std::optional<bool> positionalStyle;
    std::size_t nextSequential = 0;
    for (const FormatConversion& conversion : conversionsIn(text)) {
        if (conversion.type == ConversionType::percent) {
            continue;
        }
        if (!conversion.takesArgument()) {
            return "has the unsupported conversion " + written(text, conversion);
        }
        if (conversion.takesFieldSizeArgument()) {
            return written(text, conversion) +
                   " takes its width or precision from an argument, which no caller passes";
        }
        const bool positional = conversion.position.has_value();
        if (positionalStyle.value_or(positional) != positional) {
            return "mixes positional and sequential conversions";
        }
        positionalStyle = positional;
        if (positional && *conversion.position == 0) {
            return written(text, conversion) + " refers to argument 0; positions start at 1";
        }
        const std::size_t index = positional ? *conversion.position - 1 : nextSequential++;
        if (auto problem = auditReference(text, conversion, index, arguments, referenced)) {
            return problem;
        }
    }
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        if (arguments[index].shown && !referenced[index]) {
            return "does not show argument " + std::to_string(index + 1);
        }
    }
    return std::nullopt;
}

// A plural format with each variable written as the integer conversion it stands for, and the
// names of its variables.
struct FormatWithoutVariables {
    std::string text;
    std::vector<std::string> names;
};

FormatWithoutVariables withoutVariables(std::string_view format) {
    FormatWithoutVariables result;
    std::size_t cursor = 0;
    std::size_t percent = format.find('%');
    while (percent != std::string_view::npos) {
        result.text.append(format.substr(cursor, percent - cursor));
        const std::string_view rest = format.substr(percent);
        std::size_t length = 0;
        if (const std::optional<VariableReference> reference = readVariableReference(rest)) {
            result.text += reference->position ? "%" + std::to_string(*reference->position) + "$lld"
                                               : std::string("%lld");
            result.names.emplace_back(reference->name);
            length = reference->length;
        } else {
            length = readConversion(rest, 0).length;
            result.text.append(rest.substr(0, length));
        }
        cursor = percent + length;
        percent = format.find('%', cursor);
    }
    result.text.append(format.substr(std::min(cursor, format.size())));
    return result;
}

std::optional<std::string> auditValueType(std::string_view valueType) {
    const std::string conversion = "%" + std::string(valueType);
    const FormatConversion read = readConversion(conversion, 0);
    if (read.length != conversion.size() || !kindMatches(read, ArgumentKind::integer)) {
        return "has the value type " + inQuotes(valueType) + "; a signed integer (lld) is needed";
    }
    return std::nullopt;
}

// A form shows the variable's value, or nothing at all.
std::optional<std::string> auditForm(std::string_view form) {
    const bool showsSomething =
        std::ranges::any_of(conversionsIn(form), [](const FormatConversion& conversion) {
            return conversion.type != ConversionType::percent;
        });
    if (!showsSomething) {
        return std::nullopt;
    }
    static constexpr LocalizationKey formKey("form", {integerArgument});
    return auditLocalizedText(formKey, form);
}

void auditVariable(const std::string& where, const PluralFormat::Variable& variable,
                   std::vector<std::string>& problems) {
    if (auto problem = auditValueType(variable.valueType)) {
        problems.push_back(where + " " + *problem);
    }
    if (!variable.forms.contains(PluralCategory::other)) {
        problems.push_back(where + " has no \"other\" form");
    }
    for (const auto& [category, form] : variable.forms) {
        if (auto problem = auditForm(form)) {
            problems.push_back(where + " form " + inQuotes(pluralCategoryName(category)) + " " +
                               *problem);
        }
    }
}

void auditPluralEntry(const LocalizationKey& key, const PluralFormat& plural,
                      std::vector<std::string>& problems) {
    const std::string name = inQuotes(key.key());
    const FormatWithoutVariables format = withoutVariables(plural.format);
    if (auto problem = auditLocalizedText(key, format.text)) {
        problems.push_back(name + " " + *problem);
    }
    for (const std::string& variable : format.names) {
        if (!plural.variables.contains(variable)) {
            problems.push_back(name + " uses the undefined variable " + inQuotes(variable));
        }
    }
    for (const auto& [variableName, variable] : plural.variables) {
        auditVariable(name + " variable " + inQuotes(variableName), variable, problems);
    }
}

}  // namespace

std::optional<std::string> auditLocalizedText(const LocalizationKey& key, std::string_view text) {
    if (key.arguments().empty()) {
        return auditUnformatted(text);
    }
    return auditFormatted(key, text);
}

std::vector<std::string> auditStringsFile(const StringsFile& file) {
    std::vector<std::string> problems;
    if (file.error) {
        problems.push_back("line " + std::to_string(file.error->line) + ": " + file.error->message);
    }
    for (const std::string& key : file.duplicateKeys) {
        problems.push_back(inQuotes(key) + " is given more than once");
    }
    for (const LocalizationKey& key : localizationKeys) {
        const auto entry = file.entries.find(key.key());
        if (entry == file.entries.end()) {
            problems.push_back("missing " + inQuotes(key.key()));
        } else if (auto problem = auditLocalizedText(key, entry->second)) {
            problems.push_back(inQuotes(key.key()) + " " + *problem);
        }
    }
    for (const auto& [key, text] : file.entries) {
        if (!findLocalizationKey(key)) {
            problems.push_back("unknown key " + inQuotes(key));
        }
    }
    return problems;
}

std::vector<std::string> auditStringsDictFile(const StringsDictFile& file) {
    std::vector<std::string> problems;
    if (file.error) {
        problems.push_back("line " + std::to_string(file.error->line) + ": " + file.error->message);
    }
    problems.insert(problems.end(), file.problems.begin(), file.problems.end());
    for (const auto& [key, plural] : file.entries) {
        const std::optional<LocalizationKey> entry = findLocalizationKey(key);
        if (!entry) {
            problems.push_back("unknown key " + inQuotes(key));
        } else if (entry->arguments().empty()) {
            problems.push_back(inQuotes(key) +
                               " takes no arguments, so its plural entry is never used");
        } else {
            auditPluralEntry(*entry, plural, problems);
        }
    }
    return problems;
}

}  // namespace tactora
