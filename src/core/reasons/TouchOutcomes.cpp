#include "core/reasons/TouchOutcomes.h"

#include <algorithm>
#include <iterator>

namespace tactora {

TouchOutcomes::TouchOutcomes() {
    pending_.reserve(pendingCapacity);
}

void TouchOutcomes::frame(bool touching) {
    if (touching && !touching_) {
        ++touch_;
    }
    touching_ = touching;
}

std::optional<TouchOutcome> TouchOutcomes::gesture(const GestureNote& note) {
    const TouchOutcome outcome{.id = nextID_++,
                               .gesture = note.kind,
                               .fingers = note.fingers,
                               .reason = std::nullopt,
                               .time = note.time};
    if (note.kind == GestureKind::click) {
        clickedTouch_ = touch_;
    }
    // A click left to the system is passed on at once: nothing more is told of it.
    if (note.kind == GestureKind::tap || note.action != action::defaultAction) {
        if (pending_.size() == pendingCapacity) {
            pending_.erase(pending_.begin());
        }
        pending_.push_back({.outcome = outcome, .action = note.action});
    }
    return outcome;
}

std::optional<TouchOutcome> TouchOutcomes::dropped(const TouchDropNote& note) {
    // A gesture that could not run at all is refused the moment it is recognised.
    if (note.reason == DropReason::gesturesOff && !pending_.empty() &&
        pending_.back().outcome.time == note.time &&
        pending_.back().outcome.fingers == note.fingers) {
        return resolve(pending_.size() - 1, note.reason, note.time);
    }
    if (note.reason == DropReason::clickDuring && clickedTouch_ == touch_) {
        return std::nullopt;
    }
    return TouchOutcome{.id = nextID_++,
                        .gesture = std::nullopt,
                        .fingers = note.fingers,
                        .reason = note.reason,
                        .time = note.time};
}

std::optional<TouchOutcome> TouchOutcomes::actionDropped(const ActionDropNote& note) {
    const auto waiting = std::find_if(pending_.begin(), pending_.end(), [&](const Pending& item) {
        return item.action == note.action;
    });
    if (waiting != pending_.end()) {
        return resolve(static_cast<std::size_t>(std::distance(pending_.begin(), waiting)),
                       note.reason, note.time);
    }
    return TouchOutcome{.id = nextID_++,
                        .gesture = std::nullopt,
                        .fingers = 0,
                        .reason = note.reason,
                        .time = note.time};
}

void TouchOutcomes::actionPerformed(const ActionNote& note) {
    if (note.origin == ActionOrigin::direct) {
        return;
    }
    const auto done = std::find_if(pending_.begin(), pending_.end(),
                                   [&](const Pending& item) { return item.action == note.action; });
    if (done != pending_.end()) {
        pending_.erase(done);
    }
}

std::optional<TouchOutcome> TouchOutcomes::resolve(std::size_t index, DropReason reason,
                                                   double time) {
    TouchOutcome outcome = pending_.at(index).outcome;
    outcome.reason = reason;
    outcome.time = time;
    pending_.erase(pending_.begin() + static_cast<std::ptrdiff_t>(index));
    return outcome;
}

}  // namespace tactora
