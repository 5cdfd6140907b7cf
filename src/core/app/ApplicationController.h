#pragma once

#include <memory>

#include "core/platform/EventDisposition.h"
#include "core/platform/EventTypes.h"
#include "core/platform/TapEvent.h"

namespace tactora {

class Controller;

// The one application-wide controller, through which the C-style callbacks that carry no
// context (the sensor's frame callback, the event tap's callback) reach it.
//
// Set on the main thread before the sensor is first started. The application keeps it set (and
// so the controller alive) until the process ends: stopping the sensor does not promise that a
// frame callback already under way has returned. Tests clear it once their fake sensor is quiet.
// The sensor's thread merely reads it, so it needs no lock.
void setApplicationController(std::shared_ptr<Controller> controller);
void clearApplicationController();

// The controller set above (not owned by the caller), or null when none is set.
Controller* applicationController();

// The event tap's callback: hands the event to the application controller's handle(). Without
// a controller the program stops; the tap never exists before the controller does. Main thread.
EventDisposition handleTapEvent(EventType type, TapEvent& event);

}  // namespace tactora
