#pragma once

#include "core/platform/DeviceTableView.h"
#import "macos/TASettingsControls.h"

namespace tactora::macos {

// The touch devices' part of the settings window, which the window builder placed in it.
class AppKitDeviceTableView final : public DeviceTableView {
  public:
    explicit AppKitDeviceTableView(TASettingsControls* controls);

    void showDeviceTable(const DeviceTableContent& content) override;

  private:
    TASettingsControls* __strong controls_;
};

}  // namespace tactora::macos
