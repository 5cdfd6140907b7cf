#pragma once

#include <memory>
#include <string>

#include "core/profiles/Preferences.h"

namespace tactora::macos {

// The standard user defaults and private suites beside them.
class UserDefaultsSuites final : public PreferenceSuites {
  public:
    std::shared_ptr<Preferences> standard() override;
    std::shared_ptr<Preferences> suite(const std::string& name) override;
    void removeSuite(const std::string& name) override;

  private:
    std::shared_ptr<Preferences> standard_;
};

}  // namespace tactora::macos
