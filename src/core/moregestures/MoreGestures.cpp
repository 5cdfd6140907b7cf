#include "core/moregestures/MoreGestures.h"

#include "core/moregestures/RegionTap.h"

namespace tactora {

namespace {

MoreGestureEvent gesture(MoreGestureSlot slot) {
    return MoreGestureEvent{.kind = MoreGestureEvent::Kind::gesture, .slot = slot};
}

}  // namespace

std::optional<MoreGestureEvent> MoreGestures::configure(const MoreGestureSettings& settings) {
    std::optional<MoreGestureEvent> ended = cancel();
    settings_ = settings;
    return ended;
}

std::optional<MoreGestureEvent> MoreGestures::touched(std::span<const Finger> frame, double time) {
    if (!touching_) {
        touching_ = true;
        landing_ = ContactPoint::of(frame[0]);
    }
    if (settings_.has(MoreGestureSlot::tapHold)) {
        if (std::optional<MoreGestureEvent> event = holdEvent(hold_.update(frame, time))) {
            return event;
        }
        if (hold_.ownsTouch()) {
            return std::nullopt;
        }
    }
    if (settings_.anyTipTap()) {
        const std::optional<MoreGestureSlot> slot = tipTaps_.update(frame, time);
        if (slot && settings_.has(*slot)) {
            return gesture(*slot);
        }
    }
    if (const std::uint32_t wanted = settings_.swipeFingers(); wanted != 0) {
        const std::optional<MoreGestureSlot> slot = swipes_.update(frame, time, wanted);
        if (slot && settings_.has(*slot)) {
            swallowing_ = true;
            return gesture(*slot);
        }
    }
    return std::nullopt;
}

std::optional<MoreGestureEvent> MoreGestures::touchEnded(double time,
                                                         std::optional<std::int64_t> tap) {
    const bool oneFingerTap = touching_ && tap == 1;
    std::optional<MoreGestureEvent> event;
    if (settings_.has(MoreGestureSlot::tapHold)) {
        event = holdEvent(hold_.touchEnded(time, oneFingerTap));
    }
    if (!event && oneFingerTap) {
        if (const auto slot = regionTapSlot(landing_.x, landing_.y, settings_)) {
            event = gesture(*slot);
        }
    }
    touching_ = false;
    swallowing_ = false;
    tipTaps_.reset();
    swipes_.reset();
    return event;
}

std::optional<MoreGestureEvent> MoreGestures::physicalClick() {
    if (!touching_) {
        return std::nullopt;
    }
    tipTaps_.physicalClick();
    swipes_.physicalClick();
    return holdEvent(hold_.physicalClick());
}

std::optional<MoreGestureEvent> MoreGestures::cancel() {
    const std::optional<MoreGestureEvent> ended = holdEvent(hold_.cancel());
    touching_ = false;
    swallowing_ = false;
    tipTaps_.reset();
    swipes_.reset();
    return ended;
}

std::optional<MoreGestureEvent> MoreGestures::holdEvent(std::optional<TapHold::Change> change) {
    if (!change) {
        return std::nullopt;
    }
    const auto kind = *change == TapHold::Change::began ? MoreGestureEvent::Kind::holdBegan
                                                        : MoreGestureEvent::Kind::holdEnded;
    return MoreGestureEvent{.kind = kind, .slot = MoreGestureSlot::tapHold};
}

}  // namespace tactora
