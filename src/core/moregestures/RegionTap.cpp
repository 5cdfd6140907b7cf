#include "core/moregestures/RegionTap.h"

#include <cmath>

namespace tactora {

std::optional<MoreGestureSlot> regionTapSlot(double x, double y,
                                             const MoreGestureSettings& settings) {
    // A contact reported at no real position is in no region.
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return std::nullopt;
    }
    if (settings.has(MoreGestureSlot::tapTop) && y >= 1.0 - settings.topBand) {
        return MoreGestureSlot::tapTop;
    }
    const MoreGestureSlot half = x < 0.5 ? MoreGestureSlot::tapLeft : MoreGestureSlot::tapRight;
    if (settings.has(half)) {
        return half;
    }
    return std::nullopt;
}

}  // namespace tactora
