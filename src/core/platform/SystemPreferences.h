#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tactora {

// Read access to the system's own preference domains (other programs' settings, such as the
// trackpad's). Main thread only.
class SystemPreferences {
  public:
    virtual ~SystemPreferences() = default;

    // The value stored under `key` in the preference domain `domain` for the current user, as
    // an integer (a Boolean reads as 0 or 1); nothing when it is absent or of another type.
    virtual std::optional<std::int64_t> integer(std::string_view domain,
                                                std::string_view key) const = 0;
};

}  // namespace tactora
