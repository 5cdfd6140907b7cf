#pragma once

#include <cstdint>

#include "core/platform/KeyEvent.h"
#include "core/platform/MouseButtonEvent.h"

namespace tactora {

// Puts synthetic input into the system. Main thread only.
class EventPoster {
  public:
    virtual ~EventPoster() = default;

    // Creates the mouse event at the pointer's current position, sets its button number,
    // click state and user data as given, and posts it at the HID location. Posts nothing when
    // the event can't be created.
    virtual void post(const MouseButtonEvent& event) = 0;

    // Creates the key event, replaces its flags with event.flags, sets its user data and posts
    // it at the HID location. Posts nothing when the event can't be created.
    virtual void post(const KeyEvent& event) = 0;

    // Sends the Dock the notification for Show Desktop (`showDesktop` true) or Mission Control
    // (false). Returns 0 on success, otherwise the failure code (-1 when the Dock call could
    // not be loaded).
    virtual std::int32_t sendDockNotification(bool showDesktop) = 0;
};

}  // namespace tactora
