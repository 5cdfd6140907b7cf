#include "core/app/MenuBarFeedback.h"

#include <utility>

namespace tactora {

MenuBarFeedback::MenuBarFeedback(std::shared_ptr<Preferences> defaults)
    : defaults_(std::move(defaults)) {
    if (defaults_) {
        on_ = defaults_->integer(std::string(preferenceKey)).value_or(0) != 0;
    }
}

void MenuBarFeedback::setOn(bool on) {
    on_ = on;
    if (defaults_) {
        defaults_->setInteger(std::string(preferenceKey), on ? 1 : 0);
    }
    if (!on) {
        until_.reset();
    }
}

void MenuBarFeedback::fired(std::int64_t fingers, double at) {
    if (!on_) {
        return;
    }
    fingers_ = fingers;
    until_ = at + duration;
}

std::string MenuBarFeedback::title(double now) const {
    if (!on_ || !until_ || now >= *until_) {
        return {};
    }
    return std::to_string(fingers_);
}

}  // namespace tactora
