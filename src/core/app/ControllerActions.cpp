#include "core/actions/ActionCatalogue.h"
#include "core/actions/MouseEventType.h"
#include "core/app/Controller.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/support/Fatal.h"

namespace tactora {

namespace {

const std::string& actionName(ActionIndex action) {
    const std::vector<std::string>& names = choices();
    if (action < 0 || static_cast<std::size_t>(action) >= names.size()) {
        fatalError("No display name for the action");
    }
    return names[static_cast<std::size_t>(action)];
}

}  // namespace

void Controller::perform(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                         ActionOrigin origin, std::int64_t fingers, const std::string& value) {
    observers_.actionPerformed({
        .action = action,
        .shortcut = shortcut,
        .origin = origin,
        .fingers = fingers,
        .asButton = std::nullopt,
        .time = services_.clock.uptime(),
    });
    if (const std::optional<ExtraAction> extra = action::extra(action)) {
        if (services_.extraActions != nullptr) {
            services_.extraActions->perform(*extra, value);
        }
        return;
    }
    if (action == action::custom) {
        performShortcut(shortcut);
        return;
    }
    if (const std::optional<bool> showDesktop = catalogue::dockShowsDesktop(action)) {
        notifyDock(action, *showDesktop);
        return;
    }
    if (const std::optional<ButtonClicks> clicks = catalogue::buttonClicks(action)) {
        // Back to back: the second click of a double click is told apart only by its state.
        for (std::int64_t click = 1; click <= clicks->count; ++click) {
            post(clicks->button, true, click);
            post(clicks->button, false, click);
        }
        return;
    }
    if (const std::optional<KeyStroke> stroke = catalogue::keyStroke(action)) {
        sendKeys(stroke->keyCode, stroke->flags);
        warnIfSecureInput();
    }
}

void Controller::post(MouseButton button, bool down, std::int64_t clickState, std::uint64_t flags) {
    const MouseMotion motion = down ? MouseMotion::down : MouseMotion::up;
    services_.poster.post(MouseButtonEvent{
        .type = mouseEventType(button, motion),
        .button = button,
        .clickState = clickState,
        .userData = marker,
        .flags = flags,
    });
}

void Controller::sendKeys(std::uint16_t keyCode, std::uint64_t flags) {
    for (const bool down : {true, false}) {
        services_.poster.post(
            KeyEvent{.keyCode = keyCode, .down = down, .flags = flags, .userData = marker});
    }
}

void Controller::testDesktop() {
    perform(action::showDesktop, std::nullopt);
}

void Controller::performShortcut(const std::optional<SavedShortcut>& shortcut) {
    if (!shortcut || !shortcut->isValid()) {
        services_.view.setStatusText(L("shortcut.missing"));
        return;
    }
    sendKeys(shortcut->keyCode, shortcut->flags);
    state_.lastAction = "· " + shortcut->label;
    refresh();
    warnIfSecureInput();
}

void Controller::warnIfSecureInput() {
    if (services_.secureInput.enabled()) {
        services_.view.setStatusText(L("secure.input"));
    }
}

void Controller::notifyDock(ActionIndex action, bool showDesktop) {
    const std::int64_t code = services_.poster.sendDockNotification(showDesktop);
    if (code == 0) {
        state_.lastAction = L("action.sent");
    } else {
        state_.lastAction = L("action.failed", code);
        services_.view.setStatusText(L("error.action", actionName(action), code));
    }
    refresh();
}

}  // namespace tactora
