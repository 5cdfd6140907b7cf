#pragma once

#include <cstdint>

#include "core/profiles/MoreGestureSlot.h"

namespace tactora {

// What the recognisers of the further gestures decided on one frame.
struct MoreGestureEvent {
    enum class Kind : std::uint8_t {
        gesture,    // perform the slot's action once, now
        holdBegan,  // the tap-and-hold slot's button goes down (or its action is performed)
        holdEnded,  // ... and comes up: exactly once for every holdBegan
    };

    Kind kind = Kind::gesture;
    MoreGestureSlot slot = MoreGestureSlot::tapLeft;

    bool operator==(const MoreGestureEvent&) const = default;
};

}  // namespace tactora
