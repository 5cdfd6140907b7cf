#include "core/app/Controller.h"

#include <limits>
#include <utility>

#include "core/localization/Localizer.h"
#include "core/support/Fatal.h"

namespace tactora {

std::shared_ptr<Controller> Controller::create(ControllerServices services) {
    return std::make_shared<Controller>(Passkey{}, std::move(services));
}

Controller::Controller(Passkey /*unused*/, ControllerServices services)
    : services_(std::move(services)),
      keepOn_(services_.defaults),
      permissionMemory_(services_.defaults),
      feedback_(services_.defaults) {
    frameFingers_.reserve(ContactFrame::capacity);
    services_.view.setLiveText(L("live", std::int64_t{0}, lastGesture_, lastAction_));
}

bool Controller::canRunGestures() const {
    return services_.view.isEnabledOn() && !recording_ && !services_.workspace.isActive();
}

void Controller::cancelPendingActions() {
    if (actionGeneration_ == std::numeric_limits<std::int64_t>::max()) {
        fatalError("Action generation overflow");
    }
    ++actionGeneration_;
}

GestureDispatchContext Controller::dispatchContext() {
    return {actionGeneration_, profiles().activeID(), services_.workspace.frontmostProcessID()};
}

bool Controller::mayDispatch(const GestureDispatchContext& context) {
    if (trace_.isRecording()) {
        noteFrontApplication(services_.clock.uptime());
    }
    const bool configuring = recording_ || services_.workspace.isActive();
    return context.isCurrent(actionGeneration_, profiles().activeID(),
                             services_.workspace.frontmostProcessID(), services_.view.isEnabledOn(),
                             configuring);
}

ProfileStore& Controller::profiles() {
    if (!profiles_) {
        profiles_.emplace(services_.defaults, L("profile.default"));
    }
    return *profiles_;
}

const std::vector<ActionIndex>& Controller::mapping() {
    return profiles().current().actions;
}

ActionIndex Controller::actionAt(std::int64_t slot) {
    const std::vector<ActionIndex>& actions = mapping();
    if (slot < 0 || static_cast<std::size_t>(slot) >= actions.size()) {
        fatalError("Gesture slot out of range");
    }
    if (const std::optional<SlotExtra> extra =
            profiles().current().extraAt(static_cast<std::size_t>(slot))) {
        return action::index(extra->action);
    }
    return actions[static_cast<std::size_t>(slot)];
}

std::string Controller::valueAt(std::int64_t slot) {
    const std::optional<SlotExtra> extra =
        profiles().current().extraAt(static_cast<std::size_t>(slot));
    return extra ? extra->value : std::string();
}

const std::optional<SavedShortcut>& Controller::shortcutAt(std::int64_t slot) {
    const std::vector<std::optional<SavedShortcut>>& shortcuts = profiles().current().shortcuts;
    if (slot < 0 || static_cast<std::size_t>(slot) >= shortcuts.size()) {
        fatalError("Gesture slot out of range");
    }
    return shortcuts[static_cast<std::size_t>(slot)];
}

}  // namespace tactora
