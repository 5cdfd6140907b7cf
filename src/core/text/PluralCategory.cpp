#include "core/text/PluralCategory.h"

#include <array>
#include <cstddef>

namespace tactora {

namespace {

constexpr std::array<std::string_view, 6> names = {"zero", "one", "two", "few", "many", "other"};

}  // namespace

std::optional<PluralCategory> pluralCategoryNamed(std::string_view name) {
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (names[index] == name) {
            return static_cast<PluralCategory>(index);
        }
    }
    return std::nullopt;
}

std::string_view pluralCategoryName(PluralCategory category) {
    return names.at(static_cast<std::size_t>(category));
}

}  // namespace tactora
