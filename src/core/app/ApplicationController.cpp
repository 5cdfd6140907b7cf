#include "core/app/ApplicationController.h"

#include <utility>

#include "core/app/Controller.h"
#include "core/support/Fatal.h"

namespace tactora {

namespace {

std::shared_ptr<Controller>& instance() {
    static std::shared_ptr<Controller> controller;
    return controller;
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
