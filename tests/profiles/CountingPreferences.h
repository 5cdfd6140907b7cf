#pragma once

#include <cstddef>

#include "core/profiles/MemoryPreferences.h"

namespace tactora {

// Preferences in memory that count every write, to show that an operation saved nothing.
class CountingPreferences : public MemoryPreferences {
  public:
    void setData(const std::string& key, const Bytes& value) override {
        ++writes;
        MemoryPreferences::setData(key, value);
    }
    void setString(const std::string& key, const std::string& value) override {
        ++writes;
        MemoryPreferences::setString(key, value);
    }
    void setInteger(const std::string& key, std::int64_t value) override {
        ++writes;
        MemoryPreferences::setInteger(key, value);
    }
    void remove(const std::string& key) override {
        ++writes;
        MemoryPreferences::remove(key);
    }

    std::size_t writes = 0;
};

}  // namespace tactora
