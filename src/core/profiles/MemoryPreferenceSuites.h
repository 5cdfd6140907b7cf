#pragma once

#include <map>
#include <memory>
#include <string>

#include "core/profiles/MemoryPreferences.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// A standard domain and named suites, all in memory: the stand-in for the user's preferences
// in tests. Asking twice for one suite gives the same domain. Main thread only.
class MemoryPreferenceSuites : public PreferenceSuites {
  public:
    std::shared_ptr<Preferences> standard() override { return standard_; }
    std::shared_ptr<Preferences> suite(const std::string& name) override;
    void removeSuite(const std::string& name) override;

    // Whether a suite of that name has been created and not removed since.
    bool hasSuite(const std::string& name) const { return suites_.contains(name); }

  private:
    std::shared_ptr<MemoryPreferences> standard_ = std::make_shared<MemoryPreferences>();
    std::map<std::string, std::shared_ptr<MemoryPreferences>, std::less<>> suites_;
};

}  // namespace tactora
