#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/app/ControllerEvents.h"
#include "core/app/GestureExtension.h"
#include "core/app/TouchJudge.h"
#include "core/gestures/Finger.h"
#include "core/gestures/GestureState.h"
#include "core/platform/ContactShape.h"

namespace tactora {

// What one contact frame did to the touch in progress.
struct TouchStep {
    // A touch ended without a gesture, or the judge dropped its tap: why, and the touch's
    // largest finger count.
    std::optional<DropReason> dropped;
    std::int64_t droppedFingers = 0;
    // A touch that began at `began` ended as a tap of this many fingers.
    std::optional<std::int64_t> tap;
    double began = 0;
    // The frame the recogniser was fed last, if it was fed; after a restart it was first fed an
    // empty frame.
    bool restarted = false;
    bool fed = false;
    std::span<const Finger> fingers;
};

// Feeds one frame of the sensor to `gesture`, through `judge` when there is one (null: the
// recogniser alone, with its own limits). `shapes` is empty or holds one entry per finger.
// Main thread only.
TouchStep stepTouch(GestureState& gesture, TouchJudge* judge, std::span<const Finger> fingers,
                    std::span<const std::optional<ContactShape>> shapes, double now);

// Forgets the touch in progress, in the recogniser, the judge and the extension.
void resetTouch(GestureState& gesture, TouchJudge* judge, GestureExtension* extension);

}  // namespace tactora
