#include "core/localization/PluralExpansion.h"

#include <cstddef>
#include <set>
#include <string_view>
#include <variant>

#include "core/localization/FormatConversion.h"
#include "core/localization/Formatter.h"

namespace tactora {

namespace {

bool isNameCharacter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_';
}

}  // namespace

std::optional<VariableReference> readVariableReference(std::string_view text) {
    std::size_t cursor = 1;
    std::size_t position = 0;
    while (cursor < text.size() && text[cursor] >= '0' && text[cursor] <= '9') {
        position =
            std::min<std::size_t>(position * 10 + static_cast<std::size_t>(text[cursor] - '0'),
                                  FormatConversion::maxPosition);
        ++cursor;
    }
    VariableReference reference;
    if (cursor > 1) {
        if (cursor >= text.size() || text[cursor] != '$') {
            return std::nullopt;
        }
        reference.position = position;
        ++cursor;
    }
    if (!text.substr(cursor).starts_with("#@")) {
        return std::nullopt;
    }
    cursor += 2;
    std::size_t end = cursor;
    while (end < text.size() && isNameCharacter(text[end])) {
        ++end;
    }
    if (end == cursor || end >= text.size() || text[end] != '@') {
        return std::nullopt;
    }
    reference.name = text.substr(cursor, end - cursor);
    reference.length = end + 1;
    return reference;
}

namespace {

std::optional<std::string> chooseForm(
    const PluralFormat::Variable& variable, std::int64_t value,
    const std::function<PluralCategory(std::int64_t)>& categoryOf) {
    const auto& forms = variable.forms;
    if (value == 0 && forms.contains(PluralCategory::zero)) {
        return forms.at(PluralCategory::zero);
    }
    if (const auto found = forms.find(categoryOf(value)); found != forms.end()) {
        return found->second;
    }
    if (const auto other = forms.find(PluralCategory::other); other != forms.end()) {
        return other->second;
    }
    return std::nullopt;
}

std::string escapedPercents(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        escaped.push_back(character);
        if (character == '%') {
            escaped.push_back('%');
        }
    }
    return escaped;
}

class PluralExpander {
  public:
    PluralExpander(const PluralFormat& plural, std::span<const FormatArgument> arguments,
                   const std::function<PluralCategory(std::int64_t)>& categoryOf)
        : plural_(plural), arguments_(arguments), categoryOf_(categoryOf) {}

    std::optional<ExpandedText> run() {
        const std::string_view format = plural_.format;
        std::size_t cursor = 0;
        while (cursor < format.size()) {
            const std::size_t percent = format.find('%', cursor);
            if (percent == std::string_view::npos) {
                break;
            }
            result_.format.append(format.substr(cursor, percent - cursor));
            const std::optional<std::size_t> length = expandAt(format.substr(percent));
            if (!length) {
                return std::nullopt;
            }
            cursor = percent + *length;
        }
        if (cursor < format.size()) {
            result_.format.append(format.substr(cursor));
        }
        for (std::size_t index = 0; index < arguments_.size(); ++index) {
            if (!takenByVariables_.contains(index)) {
                result_.arguments.push_back(arguments_[index]);
            }
        }
        return std::move(result_);
    }

  private:
    // Expands what starts at the "%" of `text`; its length, or nothing when it can't be.
    std::optional<std::size_t> expandAt(std::string_view text) {
        if (const std::optional<VariableReference> reference = readVariableReference(text)) {
            if (!expandVariable(*reference)) {
                return std::nullopt;
            }
            return reference->length;
        }
        const FormatConversion conversion = readConversion(text, 0);
        result_.format.append(text.substr(0, conversion.length));
        if (conversion.takesArgument()) {
            noteStyle(conversion.position.has_value());
            if (!conversion.position) {
                nextSequential_ += (conversion.width.fromArgument() ? 1 : 0) +
                                   (conversion.precision.fromArgument() ? 1 : 0) + 1;
            }
        }
        return conversion.length;
    }

    bool expandVariable(const VariableReference& reference) {
        const bool positional = reference.position.has_value();
        if (noteStyle(positional) != positional) {
            return false;
        }
        const auto variable = plural_.variables.find(reference.name);
        if (variable == plural_.variables.end()) {
            return false;
        }
        std::size_t index = 0;
        if (positional) {
            if (*reference.position == 0) {
                return false;
            }
            index = *reference.position - 1;
        } else {
            index = nextSequential_++;
            takenByVariables_.insert(index);
        }
        if (index >= arguments_.size()) {
            return false;
        }
        const auto* value = std::get_if<std::int64_t>(&arguments_[index]);
        if (value == nullptr) {
            return false;
        }
        const std::optional<std::string> form = chooseForm(variable->second, *value, categoryOf_);
        if (!form) {
            return false;
        }
        const FormatArgument argument = arguments_[index];
        result_.format.append(escapedPercents(formatText(*form, std::span(&argument, 1))));
        return true;
    }

    // The format's style, which its first argument-taking conversion or variable decides.
    bool noteStyle(bool positional) {
        if (!positionalStyle_) {
            positionalStyle_ = positional;
        }
        return *positionalStyle_;
    }

    const PluralFormat& plural_;
    std::span<const FormatArgument> arguments_;
    const std::function<PluralCategory(std::int64_t)>& categoryOf_;
    ExpandedText result_;
    std::optional<bool> positionalStyle_;
    std::size_t nextSequential_ = 0;
    std::set<std::size_t> takenByVariables_;
};

}  // namespace

std::optional<ExpandedText> expandPluralFormat(
    const PluralFormat& plural, std::span<const FormatArgument> arguments,
    const std::function<PluralCategory(std::int64_t)>& categoryOf) {
    return PluralExpander(plural, arguments, categoryOf).run();
}

}  // namespace tactora
