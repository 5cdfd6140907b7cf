#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "core/platform/SystemPreferences.h"

namespace tactora::testing {

// System preference domains held in memory.
class FakeSystemPreferences final : public SystemPreferences {
  public:
    void set(const std::string& domain, const std::string& key, std::int64_t value) {
        values_[{domain, key}] = value;
    }

    std::optional<std::int64_t> integer(std::string_view domain,
                                        std::string_view key) const override {
        const auto found = values_.find({std::string(domain), std::string(key)});
        if (found == values_.end()) {
            return std::nullopt;
        }
        return found->second;
    }

  private:
    std::map<std::pair<std::string, std::string>, std::int64_t> values_;
};

}  // namespace tactora::testing
