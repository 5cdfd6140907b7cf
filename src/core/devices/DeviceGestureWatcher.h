#pragma once

#include <cstdint>

#include "core/actions/ActionIndex.h"
#include "core/app/GestureKind.h"
#include "core/platform/MouseButton.h"

namespace tactora {

// Told what the gestures of the devices beside the Magic Mouse recognise, with the device, as
// the controller's observers are told the Magic Mouse's (the replay names them from this).
// Main thread only; rewritten() is called from the event tap's callback and allocates nothing.
class DeviceGestureWatcher {
  public:
    virtual ~DeviceGestureWatcher() = default;

    // A tap, or a physical click with one to four fingers resting, on `device`.
    virtual void recognised(std::uint64_t device, GestureKind kind, std::int64_t fingers) = 0;
    // A physical press of `device` became `button`'s press, for `action`.
    virtual void rewritten(std::uint64_t device, ActionIndex action, MouseButton button) = 0;

  protected:
    DeviceGestureWatcher() = default;
    DeviceGestureWatcher(const DeviceGestureWatcher&) = default;
    DeviceGestureWatcher& operator=(const DeviceGestureWatcher&) = default;
    DeviceGestureWatcher(DeviceGestureWatcher&&) = default;
    DeviceGestureWatcher& operator=(DeviceGestureWatcher&&) = default;
};

}  // namespace tactora
