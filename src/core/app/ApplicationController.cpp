#include "core/app/ApplicationController.h"

#include <utility>

#include "core/app/Controller.h"

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

}  // namespace tactora
