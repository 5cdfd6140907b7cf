#pragma once

#include "core/platform/Permissions.h"

namespace tactora::macos {

// Accessibility trust and Input Monitoring, as the system's privacy settings hold them.
class SystemPermissions final : public Permissions {
  public:
    bool accessibilityTrusted() const override;
    bool inputMonitoringGranted() const override;
    void requestAccessibility() override;
    void requestInputMonitoring() override;
};

}  // namespace tactora::macos
