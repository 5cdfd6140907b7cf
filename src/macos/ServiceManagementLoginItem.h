#pragma once

#include <cstdint>

#include "core/platform/LoginItem.h"

namespace tactora::macos {

// The application itself as a login item, through the Service Management framework's app
// service for the main application (macOS 13 and later). The SDK this is built against may
// lack the framework, so it is loaded at run time; without it the status is "not found" and
// registering fails with -1.
class ServiceManagementLoginItem final : public LoginItem {
  public:
    LoginItemStatus status() const override;
    std::int64_t registerItem() override;
    std::int64_t unregisterItem() override;
    void openLoginItemsSettings() override;
};

}  // namespace tactora::macos
