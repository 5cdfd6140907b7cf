#pragma once

#include <cstdint>
#include <span>

#include "core/gestures/Finger.h"
#include "core/gestures/GestureState.h"

namespace tactora {

// Where one finger was seen, for the recognisers of the further gestures. A plain value.
struct ContactPoint {
    std::int64_t id = 0;
    double x = 0;
    double y = 0;

    static ContactPoint of(const Finger& finger) { return {finger.id, finger.x, finger.y}; }

    // Whether `finger` is farther from this point than the tap's movement tolerance: the same
    // stillness that the tap recogniser asks of a tap. A position that is not a number is
    // never movement.
    bool isLeftBy(const Finger& finger) const {
        constexpr double limit = GestureState::movementTolerance * GestureState::movementTolerance;
        const double dx = finger.x - x;
        const double dy = finger.y - y;
        return dx * dx + dy * dy > limit;
    }
};

// The finger of `frame` with `id`, or null.
inline const Finger* findFinger(std::span<const Finger> frame, std::int64_t id) {
    for (const Finger& finger : frame) {
        if (finger.id == id) {
            return &finger;
        }
    }
    return nullptr;
}

}  // namespace tactora
