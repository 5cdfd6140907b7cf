#pragma once

#include <cstdint>
#include <string>

namespace tactora {

// Called on the sensor's own thread with the contacts that touch the surface; the arrays hold
// `count` entries (`shapes` four per contact: size, angle, major and minor axis; null when the
// sensor reports none) and are valid only during the call. Count 0 means every finger has lifted.
using FrameCallback = void (*)(std::int32_t count, const std::int32_t* ids, const float* xs,
                               const float* ys, const float* shapes);

// The mouse's touch sensor. All members are called on the main thread.
class Sensor {
  public:
    virtual ~Sensor() = default;

    // Stops any earlier connection, then connects and starts delivering the Magic Mouse's frames
    // to `callback`. True when frames flow: from the Magic Mouse or, once
    // TouchDevices::useOthers() gave a choice, from at least one device chosen beside it (whose
    // frames go to the callback given there), so that a Mac with only a trackpad in use can run.
    virtual bool start(FrameCallback callback) = 0;
    virtual void stop() = 0;

    // The Magic Mouse's status key ("sensor.connected", "sensor.missing", ...), whatever the
    // devices beside it do: that of the last start or, once TouchDevices::useOthers() gave a
    // choice, of the last TouchDevices::refresh() that saw the mouse leave or arrive.
    virtual std::string status() const = 0;
    // The error code of the Magic Mouse's failed start behind status(), 0 otherwise.
    virtual std::int32_t statusError() const = 0;

    // The registry entry id of the Magic Mouse whose frames flow (the id a DeviceWatcher
    // reports), 0 while none is connected; kept current by refresh() in the same way.
    virtual std::uint64_t connectedDevice() const = 0;

    // Whether the input device with this registry entry id is the Magic Mouse.
    virtual bool isMouseSender(std::uint64_t senderID) = 0;
};

}  // namespace tactora
