#pragma once

#include <utility>

#include "core/profiles/PreferenceValue.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// A preferences domain that lives in memory only: for tests, and as the working copy of
// domains kept elsewhere. Main thread only.
class MemoryPreferences : public Preferences {
  public:
    MemoryPreferences() = default;
    explicit MemoryPreferences(PreferenceValues values) : values_(std::move(values)) {}

    std::optional<Bytes> data(const std::string& key) const override;
    std::optional<std::string> string(const std::string& key) const override;
    std::optional<std::int64_t> integer(const std::string& key) const override;

    void setData(const std::string& key, const Bytes& value) override;
    void setString(const std::string& key, const std::string& value) override;
    void setInteger(const std::string& key, std::int64_t value) override;
    void remove(const std::string& key) override;

    // Everything the domain holds, by key.
    const PreferenceValues& values() const { return values_; }
    void removeAll() { values_.clear(); }

  private:
    template <typename T>
    std::optional<T> read(const std::string& key) const;

    PreferenceValues values_;
};

}  // namespace tactora
