#include "core/moregestures/MoreGestures.h"

#include "core/moregestures/RegionTap.h"

namespace tactora {

std::optional<MoreGestureEvent> MoreGestures::configure(const MoreGestureSettings& settings) {
    std::optional<MoreGestureEvent> ended = cancel();
    settings_ = settings;
    holdMapped_ = settings.has(MoreGestureSlot::tapHold);
    tipTapsMapped_ = settings.anyTipTap();
    swipeFingers_ = settings.swipeFingers();
    return ended;
}

std::optional<MoreGestureEvent> MoreGestures::touchEnded(double time,
                                                         std::optional<std::int64_t> tap) {
    const bool oneFingerTap = touching_ && tap == 1;
    std::optional<MoreGestureEvent> event;
    if (holdMapped_) {
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

}  // namespace tactora
