#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tactora {

using Bytes = std::vector<std::uint8_t>;

// One domain of the user's preferences: typed values by key. A value read as the wrong type
// reads as absent. Writes take effect at once for later reads; persisting them is the
// implementation's business. Main thread only.
class Preferences {
  public:
    virtual ~Preferences() = default;

    virtual std::optional<Bytes> data(const std::string& key) const = 0;
    virtual std::optional<std::string> string(const std::string& key) const = 0;
    virtual std::optional<std::int64_t> integer(const std::string& key) const = 0;

    virtual void setData(const std::string& key, const Bytes& value) = 0;
    virtual void setString(const std::string& key, const std::string& value) = 0;
    virtual void setInteger(const std::string& key, std::int64_t value) = 0;
    virtual void remove(const std::string& key) = 0;

  protected:
    // Only implementations copy or move, never through the interface.
    Preferences() = default;
    Preferences(const Preferences&) = default;
    Preferences(Preferences&&) = default;
    Preferences& operator=(const Preferences&) = default;
    Preferences& operator=(Preferences&&) = default;
};

// The standard domain and named private suites beside it. Main thread only.
class PreferenceSuites {
  public:
    virtual ~PreferenceSuites() = default;

    virtual std::shared_ptr<Preferences> standard() = 0;
    virtual std::shared_ptr<Preferences> suite(const std::string& name) = 0;
    // Deletes everything a suite holds, in memory and on disk.
    virtual void removeSuite(const std::string& name) = 0;

  protected:
    PreferenceSuites() = default;
    PreferenceSuites(const PreferenceSuites&) = default;
    PreferenceSuites(PreferenceSuites&&) = default;
    PreferenceSuites& operator=(const PreferenceSuites&) = default;
    PreferenceSuites& operator=(PreferenceSuites&&) = default;
};

}  // namespace tactora
