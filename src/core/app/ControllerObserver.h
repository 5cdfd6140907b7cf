#pragma once

#include <cstdint>

#include "core/actions/ActionIndex.h"
#include "core/platform/MouseButton.h"

namespace tactora {

// Told what the controller decided, as it decides it; the replay of a trace prints it. Every
// call comes on the main thread, from inside the controller's own operation.
class ControllerObserver {
  public:
    virtual ~ControllerObserver() = default;

    // The last finger lifted and the touch was a tap with this many fingers.
    virtual void tapRecognised(std::int64_t fingers) = 0;
    // The mouse's button went down with this many fingers resting on fresh contacts.
    virtual void clickRecognised(std::int64_t fingers) = 0;
    // An action is being carried out (action 0, the system's own behaviour, included).
    virtual void actionPerformed(ActionIndex action) = 0;
    // A physical press is being turned into `button`'s press, for `action`.
    virtual void pressRewritten(ActionIndex action, MouseButton button) = 0;

  protected:
    ControllerObserver() = default;
    ControllerObserver(const ControllerObserver&) = default;
    ControllerObserver(ControllerObserver&&) = default;
    ControllerObserver& operator=(const ControllerObserver&) = default;
    ControllerObserver& operator=(ControllerObserver&&) = default;
};

}  // namespace tactora
