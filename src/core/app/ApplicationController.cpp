#include "core/app/ApplicationController.h"

#include <utility>

#include "core/app/Controller.h"
#include "core/support/Fatal.h"

namespace tactora {

namespace {

// Never destroyed: the sensor's thread may still be delivering a frame while the process ends,
// and a static destructor run by exit() must not let go of the controller under it.
std::shared_ptr<Controller>& instance() {
    static auto* const controller = new std::shared_ptr<Controller>();
    return *controller;
}

}  // namespace

void setApplicationController(std::shared_ptr<Controller> controller) {
    instance() = std::move(controller);
}

void clearApplicationController() {
    instance().reset();
}

Controller* applicationController() {
    return instance().get();
}

EventDisposition handleTapEvent(EventType type, TapEvent& event) {
    Controller* controller = applicationController();
    if (controller == nullptr) {
        fatalError("Event tap without a controller");
    }
    return controller->handle(type, event);
}

}  // namespace tactora
