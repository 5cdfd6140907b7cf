#include "core/localization/LanguagePreference.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace tactora {

namespace {

constexpr std::array<std::string_view, 3> localeVariables = {"LC_ALL", "LC_MESSAGES", "LANG"};

bool isAsciiLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isAsciiDigit(char character) {
    return character >= '0' && character <= '9';
}

char toLower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

char toUpper(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

bool allOf(std::string_view text, bool (*test)(char)) {
    return std::ranges::all_of(text, test);
}

std::vector<std::string_view> split(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> parts;
    std::size_t begin = 0;
    while (begin <= text.size()) {
        const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
        parts.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return parts;
}

// One subtag after the language: a script ("Hant"), a region ("BR", "419"), or nothing for
// anything else (variants are not used by localisation names).
std::optional<std::string> normalizedSubtag(std::string_view subtag) {
    if (subtag.size() == 4 && allOf(subtag, isAsciiLetter)) {
        std::string script;
        script.push_back(toUpper(subtag[0]));
        std::ranges::transform(subtag.substr(1), std::back_inserter(script), toLower);
        return script;
    }
    if (subtag.size() == 2 && allOf(subtag, isAsciiLetter)) {
        std::string region;
        std::ranges::transform(subtag, std::back_inserter(region), toUpper);
        return region;
    }
    if (subtag.size() == 3 && allOf(subtag, isAsciiDigit)) {
        return std::string(subtag);
    }
    return std::nullopt;
}

// The name with case folded and "_" read as "-", for comparing.
std::string comparable(std::string_view name) {
    std::string folded;
    std::ranges::transform(name, std::back_inserter(folded), [](char character) {
        return character == '_' ? '-' : toLower(character);
    });
    return folded;
}

std::string languageOf(std::string_view name) {
    const std::string folded = comparable(name);
    return folded.substr(0, folded.find('-'));
}

// The script a name is written in, folded: its script subtag, or for Chinese the one its
// region implies (Traditional in Taiwan, Hong Kong and Macao, Simplified elsewhere). Nothing
// for a name of another language without a script subtag.
std::optional<std::string> scriptOf(std::string_view name) {
    const std::string folded = comparable(name);
    const std::vector<std::string_view> parts = split(folded, "-");
    for (const std::string_view subtag : std::span(parts).subspan(1)) {
        if (subtag.size() == 4 && allOf(subtag, isAsciiLetter)) {
            return std::string(subtag);
        }
    }
    if (parts.front() != "zh") {
        return std::nullopt;
    }
    constexpr std::array<std::string_view, 3> traditionalRegions = {"tw", "hk", "mo"};
    const bool traditional = std::ranges::any_of(parts, [&](std::string_view subtag) {
        return std::ranges::find(traditionalRegions, subtag) != traditionalRegions.end();
    });
    return traditional ? "hant" : "hans";
}

// Whether a reader of `wanted` can read `name`, which is of the same language: not when both
// scripts are known and differ (a reader of Traditional Chinese gets no Simplified table).
bool sameScript(std::string_view wanted, std::string_view name) {
    const std::optional<std::string> wantedScript = scriptOf(wanted);
    const std::optional<std::string> nameScript = scriptOf(name);
    return !wantedScript || !nameScript || *wantedScript == *nameScript;
}

std::optional<std::string> matchOne(std::span<const std::string> available,
                                    const std::string& wanted) {
    const std::string folded = comparable(wanted);
    const auto exact = std::ranges::find_if(
        available, [&](const std::string& name) { return comparable(name) == folded; });
    if (exact != available.end()) {
        return *exact;
    }
    const std::string language = languageOf(wanted);
    const auto bare = std::ranges::find_if(available, [&](const std::string& name) {
        return comparable(name) == language && sameScript(wanted, name);
    });
    if (bare != available.end()) {
        return *bare;
    }
    const auto sibling = std::ranges::find_if(available, [&](const std::string& name) {
        return languageOf(name) == language && sameScript(wanted, name);
    });
    if (sibling != available.end()) {
        return *sibling;
    }
    return std::nullopt;
}

void addOnce(std::vector<std::string>& languages, std::string_view localeName) {
    std::optional<std::string> name = localizationName(localeName);
    if (name && std::ranges::find(languages, *name) == languages.end()) {
        languages.push_back(std::move(*name));
    }
}

}  // namespace

std::optional<std::string> localizationName(std::string_view localeName) {
    const std::string_view base = localeName.substr(0, localeName.find_first_of(".@"));
    if (base == "C" || base == "POSIX") {
        return std::nullopt;
    }
    const std::vector<std::string_view> parts = split(base, "_-");
    const std::string_view language = parts.front();
    if (language.size() < 2 || language.size() > 3 || !allOf(language, isAsciiLetter)) {
        return std::nullopt;
    }
    std::string name;
    std::ranges::transform(language, std::back_inserter(name), toLower);
    for (const std::string_view subtag : std::span(parts).subspan(1)) {
        if (const std::optional<std::string> normalized = normalizedSubtag(subtag)) {
            name += '-' + *normalized;
        }
    }
    return name;
}

std::vector<std::string> preferredLanguages(const EnvironmentLookup& environment) {
    std::vector<std::string> languages;
    if (const std::optional<std::string> list = environment("LANGUAGE")) {
        for (const std::string_view entry : split(*list, ":")) {
            addOnce(languages, entry);
        }
    }
    for (const std::string_view variable : localeVariables) {
        const std::optional<std::string> value = environment(variable);
        if (value && !value->empty()) {
            addOnce(languages, *value);
            break;
        }
    }
    return languages;
}

std::optional<std::string> chooseLocalization(std::span<const std::string> available,
                                              std::span<const std::string> preferred) {
    if (available.empty()) {
        return std::nullopt;
    }
    for (const std::string& wanted : preferred) {
        if (std::optional<std::string> match = matchOne(available, wanted)) {
            return match;
        }
    }
    const std::string development = comparable(developmentLocalization);
    const auto fallback = std::ranges::find_if(
        available, [&](const std::string& name) { return comparable(name) == development; });
    return fallback != available.end() ? *fallback : available.front();
}

}  // namespace tactora
