#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tactora {

// Choosing the language of the texts where the system does not choose it (off macOS). Pure
// functions; any thread.

// Reads one environment variable: its value, or nothing when it is not set.
using EnvironmentLookup = std::function<std::optional<std::string>(std::string_view name)>;

// The language the tables are written in first, used when nothing else matches.
inline constexpr std::string_view developmentLocalization = "en";

// A POSIX locale name as a localisation name: "pt_BR.UTF-8" -> "pt-BR", "en_US" -> "en-US",
// "sr_RS@latin" -> "sr-RS", "zh_Hant_TW" -> "zh-Hant-TW". The codeset and modifier are dropped,
// the language is lower-cased, a region upper-cased, a script capitalised. Nothing for "C",
// "POSIX", an empty name, or one that does not start with a two- or three-letter language.
std::optional<std::string> localizationName(std::string_view localeName);

// The user's preferred languages, best first, without repeats: the entries of the
// colon-separated LANGUAGE list when it is set, then the first set, non-empty one of LC_ALL,
// LC_MESSAGES and LANG (the POSIX order of precedence). Names that are not languages ("C")
// are skipped.
std::vector<std::string> preferredLanguages(const EnvironmentLookup& environment);

// Picks one of `available` (localisation names, such as the bundle's *.lproj folders) for a
// user who prefers `preferred`, best first. For each preferred language in turn: an available
// name equal to it, ignoring case and "_" versus "-"; else one of the same language with no
// region, or else with another region ("pt-PT" gets "pt-BR" when that is the only Portuguese),
// but never one in another script: Chinese of mainland China and Singapore ("zh-CN", "zh-SG",
// plain "zh") reads Simplified ("zh-Hans"), of Taiwan, Hong Kong and Macao Traditional, so
// "zh-TW" does not get "zh-Hans". When no preferred language matches: the development localisation
// if available, else the first available one. Nothing only when `available` is empty. Returns the
// name as spelt in `available`.
std::optional<std::string> chooseLocalization(std::span<const std::string> available,
                                              std::span<const std::string> preferred);

}  // namespace tactora
