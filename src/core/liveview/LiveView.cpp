#include "core/liveview/LiveView.h"

#include <cstddef>
#include <vector>

#include "core/actions/ExtraActionInfo.h"
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

std::shared_ptr<LiveView> LiveView::create(SurfaceView& view, Clock& clock, MainQueue& queue) {
    return std::make_shared<LiveView>(Passkey{}, view, clock, queue);
}

LiveView::LiveView(Passkey /*unused*/, SurfaceView& view, Clock& clock, MainQueue& queue)
    : view_(view), clock_(clock), queue_(queue) {}

void LiveView::launched(double /*time*/) {
    view_.observeVisibility([weak = weak_from_this()](bool visible) {
        if (const auto self = weak.lock()) {
            self->visibilityChanged(visible);
        }
    });
}

void LiveView::visibilityChanged(bool visible) {
    visible_ = visible;
    if (visible) {
        show();
        scheduleHighlightEnd();
    }
}

void LiveView::refreshed(double /*time*/) {
    if (visible_) {
        show();
    }
}

void LiveView::frameReceived(const FrameNote& note) {
    outcomes_.frame(!note.fingers.empty());
    if (!visible_) {
        return;
    }
    surface_.frame(note.fingers, note.time);
    show();
}

void LiveView::gestureRecognised(const GestureNote& note) {
    (void)outcomes_.gesture(note);
    surface_.gesture(note.kind, note.fingers, note.time);
    highlightChanged();
}

void LiveView::touchDropped(const TouchDropNote& note) {
    rejected(outcomes_.dropped(note));
}

void LiveView::actionDropped(const ActionDropNote& note) {
    rejected(outcomes_.actionDropped(note));
}

void LiveView::rejected(const std::optional<TouchOutcome>& outcome) {
    if (!outcome || !outcome->reason) {
        return;
    }
    surface_.rejected(*outcome->reason, outcome->time);
    highlightChanged();
}

void LiveView::actionPerformed(const ActionNote& note) {
    outcomes_.actionPerformed(note);
    // The system's own behaviour is no action of ours, and a direct request no gesture's.
    if (note.origin == ActionOrigin::direct || note.action == action::defaultAction) {
        return;
    }
    const std::optional<std::string> name = displayName(note.action, note.shortcut);
    if (!name) {
        return;
    }
    surface_.action(*name, note.time);
    highlightChanged();
}

void LiveView::highlightChanged() {
    // A hidden window is brought up to date when it becomes visible.
    if (!visible_) {
        return;
    }
    show();
    scheduleHighlightEnd();
}

void LiveView::scheduleHighlightEnd() {
    scheduleShowAt(surface_.highlightEnd());
    scheduleShowAt(surface_.reasonEnd());
}

void LiveView::scheduleShowAt(std::optional<double> end) {
    const double now = clock_.uptime();
    if (!end || *end <= now) {
        return;
    }
    queue_.after(*end - now, [weak = weak_from_this()] {
        const auto self = weak.lock();
        if (self && self->visible_) {
            self->show();
        }
    });
}

void LiveView::show() {
    view_.show(surface_.snapshot(clock_.uptime()));
}

}  // namespace tactora
