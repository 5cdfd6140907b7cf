#include "core/profiles/MoreGestureMap.h"

#include <algorithm>
#include <cmath>

#include "core/profiles/GestureSlots.h"

namespace tactora {

void MoreGestureMap::sanitize() {
    for (std::size_t i = 0; i < moreslot::count; ++i) {
        if (shortcuts[i] && !shortcuts[i]->isValid()) {
            shortcuts[i].reset();
        }
        const bool orphanedCustom = actions[i] == action::custom && !shortcuts[i];
        if (!action::isValid(actions[i]) || orphanedCustom) {
            actions[i] = action::defaultAction;
        }
        sanitizeSlotExtra(actions[i], extras[i]);
    }
    topBand =
        std::isnan(topBand) ? defaultTopBand : std::clamp(topBand, smallestTopBand, largestTopBand);
}

bool MoreGestureMap::isDefault() const {
    return *this == MoreGestureMap();
}

}  // namespace tactora
