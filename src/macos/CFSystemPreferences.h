#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/platform/SystemPreferences.h"

namespace tactora::macos {

// Other programs' preference domains for the current user, through CoreFoundation's
// preferences. Each read first synchronises the domain, so a change the user just made in
// System Settings is seen. Main thread.
class CFSystemPreferences final : public SystemPreferences {
  public:
    std::optional<std::int64_t> integer(std::string_view domain,
                                        std::string_view key) const override;
};

}  // namespace tactora::macos
