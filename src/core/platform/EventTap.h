#pragma once

#include <cstdint>

namespace tactora {

// The system-wide event tap through which the mouse's physical clicks pass. Created at most
// once and never destroyed; the controller switches it on and off. The shell's tap callback
// hands every event (and the tap-disabled notices) to the controller's handle() and deletes
// the event when handle() answers EventDisposition::swallow. Main thread only: the tap's
// run-loop source lives on the main run loop.
class EventTap {
  public:
    virtual ~EventTap() = default;

    // Creates the tap for the event types in `mask`, at the HID location, inserted at the head,
    // as an active filter that may change and delete events, and adds it to the main run loop
    // in the common modes. Does not enable it. False when the system refuses (no permission);
    // then no tap exists and a later call may try again. Called only while exists() is false.
    virtual bool create(std::uint64_t mask) = 0;

    // Whether create() has succeeded.
    virtual bool exists() const = 0;

    // Enables or disables the existing tap; does nothing when there is none.
    virtual void setEnabled(bool enabled) = 0;
};

}  // namespace tactora
