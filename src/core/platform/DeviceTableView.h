#pragma once

#include "core/platform/DeviceTableContent.h"

namespace tactora {

// The touch devices' part of the settings window: the choice of surface above the gesture table,
// the trackpads' rows, and the Touch Surfaces sheet with the list of devices and the conflicts.
// What the user does in it reaches the devicetable part: a device's checkbox its setUses(device,
// on), the surface choice its chooseSurface(kind), a row's pop-up its changed(slot, action), a
// record button its recordShortcut(slot) and a conflict's button its openSettings(tag). Opening
// and closing the sheet (its button, a row's warning sign, Done, Escape) changes nothing but
// what is on screen. Main thread only.
class DeviceTableView {
  public:
    virtual ~DeviceTableView() = default;

    // Shows this content in place of what was shown.
    virtual void showDeviceTable(const DeviceTableContent& content) = 0;
};

}  // namespace tactora
