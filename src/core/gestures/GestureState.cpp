#include "core/gestures/GestureState.h"

#include <cmath>
#include <utility>

namespace tactora {

bool GestureState::isBeyondToleranceNearItsEdge(double dx, double dy) const {
    // A NaN distance compares false and so never counts as movement.
    return std::hypot(dx, dy) > thresholds.tolerance;
}

std::optional<std::int64_t> GestureState::endSequence(double time) {
    const bool isTap = began.has_value() && thresholds.allowsDuration(time - *began) && !clicked &&
                       !moved && !invalid && peak >= 1 && peak <= maxFingers;
    const std::optional<std::int64_t> result =
        isTap ? std::optional<std::int64_t>(peak) : std::nullopt;
    reset();
    return result;
}

void GestureState::physicalClick() {
    clicked = true;
}

void GestureState::reset() {
    // Rebuilt from scratch, but the origins' storage is handed on so that later sequences with
    // no more fingers than before allocate nothing.
    FingerOrigins kept = std::move(origins);
    kept.clear();
    const TapThresholds limits = thresholds;
    *this = GestureState();
    origins = std::move(kept);
    thresholds = limits;
}

}  // namespace tactora
