#include "core/profiles/MoreGestureMap.h"

#include <algorithm>
#include <cmath>

#include "core/actions/ExtraActionInfo.h"

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
        sanitizeExtra(i);
    }
    topBand =
        std::isnan(topBand) ? defaultTopBand : std::clamp(topBand, smallestTopBand, largestTopBand);
}

void MoreGestureMap::sanitizeExtra(std::size_t i) {
    std::optional<SlotExtra>& extra = extras[i];
    if (!extra) {
        return;
    }
    const ActionValueKind kind = catalogue::info(extra->action).value;
    if (kind == ActionValueKind::none) {
        extra->value.clear();
    }
    // A slot that an older copy gave another action keeps that action in both copies.
    if (actions[i] != action::defaultAction ||
        (kind != ActionValueKind::none && extra->value.empty())) {
        extra.reset();
    }
}

bool MoreGestureMap::isDefault() const {
    return *this == MoreGestureMap();
}

}  // namespace tactora
