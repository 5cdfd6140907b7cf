#pragma once

#include "app/fakes/CallLog.h"
#include "core/platform/Permissions.h"

namespace tactora::testing {

class FakePermissions final : public Permissions {
  public:
    explicit FakePermissions(CallLog& log) : log_(log) {}

    bool accessibilityTrusted() const override { return accessibility; }
    bool inputMonitoringGranted() const override { return inputMonitoring; }
    void requestAccessibility() override { log_.add("permissions.requestAccessibility"); }
    void requestInputMonitoring() override { log_.add("permissions.requestInputMonitoring"); }

    bool accessibility = true;
    bool inputMonitoring = true;

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
