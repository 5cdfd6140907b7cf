#include "core/gestures/GestureState.h"

#include <cmath>
#include <utility>

namespace tactora {

namespace {

bool isTapDuration(double duration) {
    return duration >= GestureState::shortestTap && duration <= GestureState::longestTap;
}

}  // namespace

bool GestureState::isBeyondToleranceNearItsEdge(double dx, double dy) {
    // A NaN distance compares false and so never counts as movement.
    return std::hypot(dx, dy) > movementTolerance;
}

std::optional<std::int64_t> GestureState::endSequence(double time) {
    const bool isTap = began.has_value() && isTapDuration(time - *began) && !clicked && !moved &&
                       !invalid && peak >= 1 && peak <= maxFingers;
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
    *this = GestureState();
    origins = std::move(kept);
}

}  // namespace tactora
