#include "core/app/Controller.h"

#include <cstddef>
#include <limits>
#include <utility>

#include "core/localization/Localizer.h"
#include "core/support/Fatal.h"

namespace tactora {

namespace {

// Releases swallowed before the main queue runs again: one per button at the most, and rarely
// more than one.
constexpr std::size_t releasedCapacity = 8;

}  // namespace

std::shared_ptr<Controller> Controller::create(ControllerServices services) {
    return std::make_shared<Controller>(Passkey{}, std::move(services));
}

Controller::Controller(Passkey /*unused*/, ControllerServices services)
    : services_(std::move(services)) {
    released_.reserve(releasedCapacity);
    frameFingers_.reserve(ContactFrame::capacity);
    frameShapes_.reserve(ContactFrame::capacity);
    services_.view.setLiveText(L("live", std::int64_t{0}, state_.lastGesture, state_.lastAction));
}

bool Controller::canRunGestures() const {
    return services_.view.isEnabledOn() && !state_.recording && !services_.workspace.isActive();
}

void Controller::cancelPendingActions() {
    if (state_.actionGeneration == std::numeric_limits<std::int64_t>::max()) {
        fatalError("Action generation overflow");
    }
    ++state_.actionGeneration;
}

GestureDispatchContext Controller::dispatchContext() {
    return {state_.actionGeneration, profiles().activeID(),
            services_.workspace.frontmostProcessID()};
}

bool Controller::mayDispatch(const GestureDispatchContext& context) {
    return !guardRefusal(context);
}

std::optional<DropReason> Controller::guardRefusal(const GestureDispatchContext& context) {
    const bool enabled = services_.view.isEnabledOn();
    const bool configuring = state_.recording || services_.workspace.isActive();
    const std::optional<std::int32_t> front = services_.workspace.frontmostProcessID();
    if (context.isCurrent(state_.actionGeneration, profiles().activeID(), front, enabled,
                          configuring)) {
        return std::nullopt;
    }
    if (!enabled) {
        return DropReason::switchChanged;
    }
    if (configuring) {
        return DropReason::gesturesOff;
    }
    if (context.profile != profiles().activeID()) {
        return DropReason::profileChanged;
    }
    if (!front || context.targetPID != front) {
        return DropReason::applicationChanged;
    }
    return DropReason::switchChanged;
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
