#pragma once

#include <optional>

#include "core/platform/DeviceTableView.h"

namespace tactora::testing {

// The devices' part of the settings window as the program last showed it. The test plays the
// user by calling the devicetable part.
class FakeDeviceTableView final : public DeviceTableView {
  public:
    void showDeviceTable(const DeviceTableContent& content) override {
        shown = content;
        ++shows;
    }

    std::optional<DeviceTableContent> shown;
    int shows = 0;
};

}  // namespace tactora::testing
