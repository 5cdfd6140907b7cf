#pragma once

#include <cstdint>
#include <span>

#include "core/gestures/Finger.h"

namespace tactora {

// Where one finger was seen, for the recognisers of the further gestures. A plain value.
struct ContactPoint {
    std::int64_t id = 0;
    double x = 0;
    double y = 0;

    static ContactPoint of(const Finger& finger) { return {finger.id, finger.x, finger.y}; }
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
