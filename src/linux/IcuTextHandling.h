#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/text/TextHandling.h"

namespace tactora {

// Text handling by ICU: the root locale's case mapping, ICU's character break iterator, its
// white-space properties and its plural rules. Immutable; any thread.
class IcuTextHandling final : public TextHandling {
  public:
    std::string upperCased(std::string_view text) const override;
    std::size_t characterCount(std::string_view text) const override;
    std::string leadingCharacters(std::string_view text, std::size_t count) const override;
    std::string trimmed(std::string_view text) const override;
    PluralCategory pluralCategory(std::string_view language, std::int64_t value) const override;
};

}  // namespace tactora
