#pragma once

#include <cstdint>
#include <functional>

namespace tactora {

// Tells when a multitouch mouse is connected or goes away (Bluetooth or cable), and which one:
// each is named by its registry entry id, the id Sensor::connectedDevice() reports. Devices
// that are present when watching starts are not reported. Main thread only: the handlers run
// on the main thread too.
class DeviceWatcher {
  public:
    using Change = std::function<void(std::uint64_t device)>;

    virtual ~DeviceWatcher() = default;

    // Starts watching for the rest of the process: `arrived` runs each time such a device
    // appears, `left` each time one is removed. Called once; false when the system offers no
    // way to watch (then neither handler ever runs).
    virtual bool watch(Change arrived, Change left) = 0;
};

}  // namespace tactora
