#include "core/feedback/MenuBarFeedback.h"

#include <utility>

#include "core/localization/Localizer.h"

namespace tactora {

std::shared_ptr<MenuBarFeedback> MenuBarFeedback::create(std::shared_ptr<Preferences> defaults,
                                                         StatusDisplay& display, Clock& clock,
                                                         MainQueue& queue) {
    return std::make_shared<MenuBarFeedback>(Passkey{}, std::move(defaults), display, clock, queue);
}

MenuBarFeedback::MenuBarFeedback(Passkey /*unused*/, std::shared_ptr<Preferences> defaults,
                                 StatusDisplay& display, Clock& clock, MainQueue& queue)
    : defaults_(std::move(defaults)), display_(display), clock_(clock), queue_(queue) {
    if (defaults_) {
        on_ = defaults_->integer(std::string(preferenceKey)).value_or(0) != 0;
    }
    showMenuEntry();
}

void MenuBarFeedback::toggle() {
    on_ = !on_;
    if (defaults_) {
        defaults_->setInteger(std::string(preferenceKey), on_ ? 1 : 0);
    }
    if (!on_) {
        until_.reset();
    }
    showMenuEntry();
    showTitle();
}

std::string MenuBarFeedback::title(double now) const {
    if (!on_ || !until_ || now >= *until_) {
        return {};
    }
    return std::to_string(fingers_);
}

void MenuBarFeedback::gestureRecognised(const GestureNote& note) {
    // A click is taken for its action at once; a tap's action waits (actionPerformed).
    if (note.kind == GestureKind::click && note.action != action::defaultAction) {
        fired(note.fingers, note.time);
    }
}

void MenuBarFeedback::actionPerformed(const ActionNote& note) {
    if (note.origin == ActionOrigin::tap && note.action != action::defaultAction) {
        fired(note.fingers, note.time);
    }
}

void MenuBarFeedback::showMenuEntry() {
    display_.setStatusMenuEntry({L("menu.feedback"), MenuCommand::toggleMenuBarFeedback, "", on_});
}

void MenuBarFeedback::fired(std::int64_t fingers, double at) {
    if (!on_) {
        return;
    }
    fingers_ = fingers;
    until_ = at + duration;
    showTitle();
    queue_.after(duration, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->showTitle();
        }
    });
}

void MenuBarFeedback::showTitle() {
    display_.setStatusItemTitle(title(clock_.uptime()));
}

}  // namespace tactora
