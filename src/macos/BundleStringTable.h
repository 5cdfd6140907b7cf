#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

#include "core/localization/StringTable.h"
#include "core/localization/StringsDictFile.h"

namespace tactora::macos {

// A bundle's default localisation table, in the language the system picked for that bundle
// (the main bundle's unless another is given), with the plural entries of the
// Localizable.stringsdict that the bundle finds for that language. Built on the main thread at
// start-up; main thread only.
class BundleStringTable final : public StringTable {
  public:
    BundleStringTable() : BundleStringTable(NSBundle.mainBundle) {}
    explicit BundleStringTable(NSBundle* bundle);

    std::optional<std::string> lookup(std::string_view key) const override;
    std::optional<PluralFormat> pluralFormat(std::string_view key) const override;
    std::optional<std::string> language() const override { return language_; }

  private:
    NSBundle* __strong bundle_;
    StringsDictFile plurals_;
    std::optional<std::string> language_;
};

}  // namespace tactora::macos
