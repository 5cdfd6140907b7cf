#pragma once

#import <Foundation/Foundation.h>

#include <cstdint>
#include <optional>
#include <string>

#include "core/profiles/Preferences.h"

namespace tactora::macos {

// One user-defaults domain: the standard one or a named suite.
class UserDefaultsPreferences final : public Preferences {
  public:
    explicit UserDefaultsPreferences(NSUserDefaults* defaults);

    std::optional<Bytes> data(const std::string& key) const override;
    std::optional<std::string> string(const std::string& key) const override;
    std::optional<std::int64_t> integer(const std::string& key) const override;

    void setData(const std::string& key, const Bytes& value) override;
    void setString(const std::string& key, const std::string& value) override;
    void setInteger(const std::string& key, std::int64_t value) override;
    void remove(const std::string& key) override;

  private:
    id object(const std::string& key) const;

    NSUserDefaults* __strong defaults_;
};

}  // namespace tactora::macos
