#include "core/gestures/GestureState.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tactora {

namespace {

bool isTapDuration(double duration) {
    return duration >= GestureState::shortestTap && duration <= GestureState::longestTap;
}

// Whether a finger that moved by (dx, dy) is farther than the tolerance from its origin, decided
// exactly as comparing std::hypot(dx, dy) with it would be. The squared distance is within a few
// units in the last place of the square of that hypotenuse, so away from the boundary it decides
// alone, without hypot's careful and slow scaling; near the boundary, and for a distance that
// is not a number, hypot decides.
bool isBeyondTolerance(double dx, double dy) {
    constexpr double limit = GestureState::movementTolerance * GestureState::movementTolerance;
    constexpr double margin = 1e-9;
    const double squared = dx * dx + dy * dy;
    if (squared < limit * (1 - margin)) {
        return false;
    }
    if (squared > limit * (1 + margin)) {
        return true;
    }
    // A NaN distance compares false and so never counts as movement.
    return std::hypot(dx, dy) > GestureState::movementTolerance;
}

}  // namespace

std::optional<std::int64_t> GestureState::update(std::span<const Finger> frame, double time) {
    count = static_cast<std::int64_t>(frame.size());
    if (frame.empty()) {
        const bool isTap = began.has_value() && isTapDuration(time - *began) && !clicked &&
                           !moved && !invalid && peak >= 1 && peak <= maxFingers;
        const std::optional<std::int64_t> result =
            isTap ? std::optional<std::int64_t>(peak) : std::nullopt;
        reset();
        return result;
    }

    if (!began) {
        began = time;
        // A click made while nothing touched the surface belongs to no sequence.
        clicked = false;
    }
    peak = std::max(peak, count);
    if (count > maxFingers) {
        invalid = true;
    }
    for (const Finger& finger : frame) {
        const FingerOrigins::Origin* origin = origins.find(finger.id);
        if (origin == nullptr) {
            origins.insert(finger.id, {finger.x, finger.y});
            continue;
        }
        if (isBeyondTolerance(finger.x - origin->x, finger.y - origin->y)) {
            moved = true;
        }
    }
    return std::nullopt;
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
