#pragma once

#include <cstdint>
#include <string>

#include "core/platform/SystemDefinedEvent.h"

namespace tactora {

// Puts the system's own kinds of input into it: the events of the keyboard's media keys, and
// the Dock's notifications. Main thread only.
class SystemEventPoster {
  public:
    virtual ~SystemEventPoster() = default;

    // Creates the system-defined event and posts it at the HID location. Posts nothing when the
    // event can't be created.
    virtual void post(const SystemDefinedEvent& event) = 0;

    // Sends the Dock the notification with this name. Returns 0 on success, otherwise the
    // failure code (-1 when the Dock call could not be loaded).
    virtual std::int32_t sendDockNotification(const std::string& name) = 0;
};

}  // namespace tactora
