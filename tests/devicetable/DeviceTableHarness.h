#pragma once

#include <memory>

#include "app/ControllerHarness.h"
#include "app/fakes/FakeDeviceTableView.h"
#include "app/fakes/FakeTouchDevices.h"
#include "devices/FakeSystemPreferences.h"

namespace tactora::testing {

// The running program on the harness's fakes, with touch devices, the system's preferences and
// the devices' part of the window as the test describes them. Its controller is the one
// installed as the application controller; the harness's own is never launched.
class DeviceTableHarness {
  public:
    DeviceTableHarness()
        : app(std::make_unique<Tactora>(h.services(),
                                        PartViews{.advanced = &h.advancedView,
                                                  .moreSheet = &h.moreSheet,
                                                  .touchDevices = &touchDevices,
                                                  .deviceTable = &view,
                                                  .systemPreferences = &preferences})) {
        setApplicationController(app->sharedController());
    }
    ~DeviceTableHarness() { clearApplicationController(); }
    DeviceTableHarness(const DeviceTableHarness&) = delete;
    DeviceTableHarness& operator=(const DeviceTableHarness&) = delete;
    DeviceTableHarness(DeviceTableHarness&&) = delete;
    DeviceTableHarness& operator=(DeviceTableHarness&&) = delete;

    Controller& c() { return app->controller(); }
    Tactora& a() { return *app; }

    // Launches, then ticks the master switch as the user would.
    void launchAndSwitchOn() {
        c().applicationDidFinishLaunching();
        h.view.enabled = true;
        c().toggle();
        h.log.clear();
    }

    ControllerHarness h;
    FakeTouchDevices touchDevices;
    FakeDeviceTableView view;
    FakeSystemPreferences preferences;
    std::unique_ptr<Tactora> app;
};

}  // namespace tactora::testing
