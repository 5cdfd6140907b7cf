#include "macos/AppKitDeviceTableView.h"

namespace tactora::macos {

AppKitDeviceTableView::AppKitDeviceTableView(TASettingsControls* controls) : controls_(controls) {}

void AppKitDeviceTableView::showDeviceTable(const DeviceTableContent& content) {
    [controls_.deviceTable show:content];
}

}  // namespace tactora::macos
