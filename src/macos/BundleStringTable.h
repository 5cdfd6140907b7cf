#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

#include "core/localization/StringTable.h"

namespace tactora::macos {

// A bundle's default localisation table, in the language the system picked for that bundle:
// the main bundle's unless another is given.
class BundleStringTable final : public StringTable {
  public:
    BundleStringTable() : bundle_(NSBundle.mainBundle) {}
    explicit BundleStringTable(NSBundle* bundle) : bundle_(bundle) {}

    std::optional<std::string> lookup(std::string_view key) const override;

  private:
    NSBundle* __strong bundle_;
};

}  // namespace tactora::macos
