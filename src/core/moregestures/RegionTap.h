#pragma once

#include <optional>

#include "core/moregestures/MoreGestureSettings.h"
#include "core/profiles/MoreGestureSlot.h"

namespace tactora {

// The region slot that a one-finger tap landing at (x, y) is performed as, or nothing when the
// tap stays the plain one-finger tap. The top band (y within `topBand` of the front edge, where
// the fingertips rest) wins when it is mapped; otherwise the left half (x below 0.5) or the
// right half, when mapped. A pure function.
std::optional<MoreGestureSlot> regionTapSlot(double x, double y,
                                             const MoreGestureSettings& settings);

}  // namespace tactora
