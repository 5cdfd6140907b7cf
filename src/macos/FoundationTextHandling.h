#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/text/TextHandling.h"

namespace tactora::macos {

// Text handling by Foundation: NSString's locale-independent upper case, its composed character
// sequences, its white-space-and-newline set, and the plural rules that Foundation applies to a
// .stringsdict. Immutable; any thread.
//
// Foundation has no call that names a number's plural category, so pluralCategory asks its
// stringsdict handling: every localisation's folder holds PluralCategory.stringsdict, whose one
// entry, "category", has the forms "zero", "one", "two", "few", "many" and "other", each its
// own name. Formatting that entry with the value (+[NSString localizedStringWithFormat:]) gives
// the name of the form Foundation chose, that is the category, by the same rules that it would
// apply to the application's own .stringsdict entries in that language. For the language the
// main bundle chose (the string table's) the main bundle itself answers; another language is
// asked of its folder opened as a bundle, and a language the bundle lacks gives "other".
class FoundationTextHandling final : public TextHandling {
  public:
    std::string upperCased(std::string_view text) const override;
    std::size_t characterCount(std::string_view text) const override;
    std::string leadingCharacters(std::string_view text, std::size_t count) const override;
    std::string trimmed(std::string_view text) const override;
    PluralCategory pluralCategory(std::string_view language, std::int64_t value) const override;
};

}  // namespace tactora::macos
