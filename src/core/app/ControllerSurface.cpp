#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/actions/ExtraActionCatalogue.h"
#include "core/app/AppMenus.h"
#include "core/app/Controller.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"

namespace tactora {

namespace {

// How the live view names an action: a recorded shortcut by its keys, anything else by its
// catalogue name. Nothing for an index outside the catalogue.
std::optional<std::string> displayName(ActionIndex action,
                                       const std::optional<SavedShortcut>& shortcut) {
    if (action == action::custom && shortcut && shortcut->isValid()) {
        return shortcut->label;
    }
    if (const std::optional<ExtraAction> extra = action::extra(action)) {
        return L(catalogue::info(*extra).textKey);
    }
    const std::vector<std::string>& names = choices();
    if (action < 0 || static_cast<std::size_t>(action) >= names.size()) {
        return std::nullopt;
    }
    return names[static_cast<std::size_t>(action)];
}

}  // namespace

void Controller::surfaceVisibilityChanged(bool visible) {
    surfaceVisible_ = visible;
    if (visible) {
        showSurface();
        scheduleHighlightEnd();
    }
}

void Controller::toggleMenuBarFeedback() {
    feedback_.setOn(!feedback_.isOn());
    showStatusMenu();
    updateMenuIcon();
}

void Controller::noteGesture(GestureKind kind, std::int64_t fingers, double at) {
    surface_.gesture(kind, fingers, at);
    highlightChanged();
}

void Controller::noteAction(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                            double at) {
    const std::optional<std::string> name = displayName(action, shortcut);
    if (!name) {
        return;
    }
    surface_.action(*name, at);
    highlightChanged();
}

void Controller::fireFeedback(std::int64_t fingers, double at) {
    if (!feedback_.isOn()) {
        return;
    }
    feedback_.fired(fingers, at);
    updateMenuIcon();
    services_.queue.after(MenuBarFeedback::duration, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->updateMenuIcon();
        }
    });
}

void Controller::highlightChanged() {
    // A hidden window is brought up to date when it becomes visible.
    if (!surfaceVisible_) {
        return;
    }
    showSurface();
    scheduleHighlightEnd();
}

void Controller::scheduleHighlightEnd() {
    const std::optional<double> end = surface_.highlightEnd();
    const double now = services_.clock.uptime();
    if (!end || *end <= now) {
        return;
    }
    services_.queue.after(*end - now, [weak = weak_from_this()] {
        const auto self = weak.lock();
        if (self && self->surfaceVisible_) {
            self->showSurface();
        }
    });
}

void Controller::showSurface() {
    services_.surface.show(surface_.snapshot(services_.clock.uptime()));
}

}  // namespace tactora
