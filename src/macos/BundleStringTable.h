#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/localization/StringTable.h"

namespace tactora::macos {

// The main bundle's default localisation table, in the language the system picked for it.
class BundleStringTable final : public StringTable {
  public:
    std::optional<std::string> lookup(std::string_view key) const override;
};

}  // namespace tactora::macos
