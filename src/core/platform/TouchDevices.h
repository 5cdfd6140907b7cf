#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/platform/ContactFrame.h"

namespace tactora {

enum class TouchDeviceKind {
    other,  // a multitouch surface that is neither, such as a touch strip
    magicMouse,
    magicTrackpad,
    builtInTrackpad,
};

enum class TouchDeviceState {
    off,        // connected, not in use
    connected,  // in use: started, frames flow
    missing,    // seen earlier, gone now
    blocked,    // chosen, but starting it failed; `error` holds the code
};

// A multitouch device as the system describes it.
struct TouchDevice {
    // Stable while the device stays connected; a device that comes back has a new one.
    std::uint64_t id = 0;
    TouchDeviceKind kind = TouchDeviceKind::other;
    TouchDeviceState state = TouchDeviceState::off;
    std::int32_t error = 0;
    std::string name;  // the product name; empty when the system has none

    bool operator==(const TouchDevice&) const = default;
};

// Called on the sensor's own thread with one frame of a device in use; `frame.device` says
// which. Count 0 means every finger on that device has lifted. Copy the frame and hand it on.
using DeviceFrameCallback = void (*)(const ContactFrame& frame);

// Every multitouch device at once: which there are, which are in use, and their frames. It
// shares the one connection to the touch sensor with Sensor: starting either ends the other.
// All members are called on the main thread.
class TouchDevices {
  public:
    using Choice = std::function<bool(const TouchDevice&)>;

    virtual ~TouchDevices() = default;

    // Stops any earlier connection, then lists the devices and starts the ones `choose`
    // accepts (it is asked again whenever the list is brought up to date). False when the
    // sensor can't be used at all; status() says why.
    virtual bool start(DeviceFrameCallback callback, Choice choose) = 0;
    // Brings the list up to date after devices came or went or the choice changed, touching
    // no device whose use goes on. True when something changed.
    virtual bool refresh() = 0;
    virtual void stop() = 0;

    // Every device seen since the start, in the order first seen, missing ones included.
    virtual std::vector<TouchDevice> devices() const = 0;

    // The Magic Mouse's status key, as Sensor::status() gives it for the single mouse.
    virtual std::string status() const = 0;
    virtual std::int32_t statusError() const = 0;

    // The id of the device in use that sent input with this registry entry id, or 0.
    virtual std::uint64_t deviceForSender(std::uint64_t senderID) = 0;

    // Runs `changed` on the main thread whenever a multitouch device arrives or leaves, for the
    // rest of this object's life. False when the system offers no way to watch.
    virtual bool watch(std::function<void()> changed) = 0;
};

}  // namespace tactora
