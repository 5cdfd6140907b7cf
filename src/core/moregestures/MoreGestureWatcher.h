#pragma once

#include "core/platform/MouseButton.h"
#include "core/profiles/MoreGestureSlot.h"

namespace tactora {

// Told what the gestures beyond the eight do as they do it, so that a replay can write it down:
// the controller's notes name only the actions these gestures carry out. Called on the main
// thread, from within the extension's own calls.
class MoreGestureWatcher {
  public:
    virtual ~MoreGestureWatcher() = default;

    // A mapped gesture was recognised; its action, if it runs one, follows.
    virtual void recognised(MoreGestureSlot slot) = 0;
    // A tap and hold's button went down, and later up: every press has exactly one release.
    virtual void pressed(MouseButton button) = 0;
    virtual void released(MouseButton button) = 0;
};

}  // namespace tactora
