#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/localization/StringTable.h"
#include "core/localization/StringsDictFile.h"

namespace tactora::macos {

// The main bundle's default localisation table, in the language the system picked for it, with
// the plural entries of the Localizable.stringsdict that the bundle finds for that language.
// Built on the main thread at start-up; main thread only.
class BundleStringTable final : public StringTable {
  public:
    BundleStringTable();

    std::optional<std::string> lookup(std::string_view key) const override;
    std::optional<PluralFormat> pluralFormat(std::string_view key) const override;
    std::optional<std::string> language() const override { return language_; }

  private:
    StringsDictFile plurals_;
    std::optional<std::string> language_;
};

}  // namespace tactora::macos
