#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/platform/ContactFrame.h"

namespace tactora {

enum class TouchDeviceKind : std::uint8_t {
    other,  // a multitouch surface that is neither, such as a touch strip
    magicMouse,
    magicTrackpad,
    builtInTrackpad,
};

enum class TouchDeviceState : std::uint8_t {
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

// Called on the sensor's own thread with one frame of a device in use beside the Magic Mouse;
// `frame.device` says which. Count 0 means every finger on that device has lifted. Copy the
// frame and hand it on; allocate nothing.
using DeviceFrameCallback = void (*)(const ContactFrame& frame);

// The multitouch devices beside the Magic Mouse that Sensor listens to. They share Sensor's one
// connection to the touch sensor: Sensor::start() starts the Magic Mouse as always and, from
// the moment useOthers() was called, the other devices chosen too; Sensor::stop() stops them
// all. Until useOthers() is called nothing but the Magic Mouse is ever started.
//
// All members are called on the main thread.
class TouchDevices {
  public:
    using Choice = std::function<bool(const TouchDevice&)>;

    virtual ~TouchDevices() = default;

    // From now on, besides the Magic Mouse, use the devices `choose` accepts (it is asked about
    // every connected device but the Magic Mouse that Sensor::start() took, whenever the list is
    // brought up to date) and hand their frames to `callback`. Takes effect at the next
    // refresh() or Sensor::start().
    virtual void useOthers(DeviceFrameCallback callback, Choice choose) = 0;
    // Brings the list up to date after devices came or went or the choice changed: starts the
    // chosen devices, stops the ones gone or no longer chosen, never touching a device whose use
    // goes on. Once useOthers() gave a choice it follows the Magic Mouse too, which the devices
    // beside it no longer depend on: the one Sensor::start() took is stopped when it leaves, and
    // while Sensor has none a Magic Mouse that arrives is started for Sensor's callback (Sensor's
    // status(), statusError() and connectedDevice() say so). True when something changed.
    virtual bool refresh() = 0;

    // Every device seen since the sensor started, the Magic Mouse included, in the order first
    // seen, missing ones too.
    virtual std::vector<TouchDevice> devices() const = 0;

    // The id of the device in use beside the Magic Mouse that sent input with this registry
    // entry id (an event's sender id), or 0 when none did.
    virtual std::uint64_t deviceForSender(std::uint64_t senderID) = 0;

    // Runs `changed` on the main thread whenever any multitouch device arrives or leaves, for
    // the rest of this object's life. False when the system offers no way to watch.
    virtual bool watch(std::function<void()> changed) = 0;
};

}  // namespace tactora
