#pragma once

#include <optional>

#include "core/platform/EventDisposition.h"
#include "core/platform/EventTypes.h"
#include "core/platform/TapEvent.h"

namespace tactora {

// Decides the mouse events that the touch devices in use beside the Magic Mouse send (a
// trackpad's clicks, drags and scrolls). The controller hands it every event of the tap that
// the Magic Mouse did not send while gestures can run; without one, such events pass untouched.
//
// Main thread only. decide() is called from the event tap's callback: it decides at once and
// allocates nothing for events it passes untouched; anything slower goes to the main queue.
class DeviceEvents {
  public:
    virtual ~DeviceEvents() = default;

    // What becomes of `event` (rewritten in place, or not) when a device in use sent it;
    // nothing when none did.
    virtual std::optional<EventDisposition> decide(EventType type, TapEvent& event) = 0;

  protected:
    DeviceEvents() = default;
    DeviceEvents(const DeviceEvents&) = default;
    DeviceEvents& operator=(const DeviceEvents&) = default;
    DeviceEvents(DeviceEvents&&) = default;
    DeviceEvents& operator=(DeviceEvents&&) = default;
};

}  // namespace tactora
