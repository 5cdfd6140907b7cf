#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tactora {

// The plural categories of a language's cardinal numbers, as the Unicode plural rules name
// them and a .stringsdict file spells them ("zero", "one", "two", "few", "many", "other").
enum class PluralCategory : std::uint8_t { zero, one, two, few, many, other };

// The category a .stringsdict key names; nothing for any other text. Pure; any thread.
std::optional<PluralCategory> pluralCategoryNamed(std::string_view name);

// The name of `category` as a .stringsdict file writes it. Pure; any thread.
std::string_view pluralCategoryName(PluralCategory category);

}  // namespace tactora
