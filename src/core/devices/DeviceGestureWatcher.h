#pragma once

#include <cstdint>

#include "core/actions/ActionIndex.h"
#include "core/app/GestureKind.h"
#include "core/platform/ContactFrame.h"
#include "core/platform/MouseButton.h"
#include "core/platform/TouchDevices.h"

namespace tactora {

// Told what the gestures of the devices beside the Magic Mouse recognise, with the device, as
// the controller's observers are told the Magic Mouse's (the replay names them from this), and
// what a recording of them needs beside the controller's notes. Main thread only; recognised()
// for clicks and rewritten() are called from the event tap's callback and allocate nothing.
class DeviceGestureWatcher {
  public:
    virtual ~DeviceGestureWatcher() = default;

    // A tap, or a physical click with one to four fingers resting, on `device`.
    virtual void recognised(std::uint64_t /*device*/, GestureKind /*kind*/,
                            std::int64_t /*fingers*/) {}
    // A physical press of `device` became `button`'s press, for `action`.
    virtual void rewritten(std::uint64_t /*device*/, ActionIndex /*action*/,
                           MouseButton /*button*/) {}

    // A frame of a device in use, as it reached the main thread at `time`, before its
    // recogniser saw it.
    virtual void frameReceived(const ContactFrame& /*frame*/, double /*time*/) {}
    // The user chose at `time` whether gestures use `device`.
    virtual void useChosen(const TouchDevice& /*device*/, bool /*use*/, double /*time*/) {}
    // What the controller carries out from actionBegins() until actionEnded() is the action of
    // a gesture of `device` (a tap's, or a click's swallowed on release).
    virtual void actionBegins(std::uint64_t /*device*/) {}
    virtual void actionEnded() {}

  protected:
    DeviceGestureWatcher() = default;
    DeviceGestureWatcher(const DeviceGestureWatcher&) = default;
    DeviceGestureWatcher& operator=(const DeviceGestureWatcher&) = default;
    DeviceGestureWatcher(DeviceGestureWatcher&&) = default;
    DeviceGestureWatcher& operator=(DeviceGestureWatcher&&) = default;
};

}  // namespace tactora
