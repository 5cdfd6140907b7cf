#pragma once

#include <cstdint>

#include "core/platform/LoginItemStatus.h"

namespace tactora {

// The application's own entry among the login items. Main thread only.
class LoginItem {
  public:
    virtual ~LoginItem() = default;

    // Asks the system afresh; no cached answer.
    virtual LoginItemStatus status() const = 0;

    // Registers the application to open at login: 0 on success, otherwise the system's error
    // code.
    virtual std::int64_t registerItem() = 0;

    // Removes the registration: 0 on success, otherwise the system's error code.
    virtual std::int64_t unregisterItem() = 0;

    // Opens the Login Items pane of System Settings.
    virtual void openLoginItemsSettings() = 0;
};

}  // namespace tactora
