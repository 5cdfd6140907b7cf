#pragma once

#include <cstdint>

#include "core/profiles/MoreGestureMap.h"
#include "core/profiles/MoreGestureSlot.h"

namespace tactora {

// What the recognisers of the further gestures need to know of a profile: which slots are
// mapped, and how deep the top band is. A plain value, rebuilt when the profile changes.
struct MoreGestureSettings {
    std::uint32_t mapped = 0;  // bit i: slot i is mapped
    double topBand = MoreGestureMap::defaultTopBand;

    static MoreGestureSettings of(const MoreGestureMap& map) {
        MoreGestureSettings settings;
        for (std::size_t i = 0; i < moreslot::count; ++i) {
            if (map.isMapped(static_cast<MoreGestureSlot>(i))) {
                settings.mapped |= std::uint32_t{1} << i;
            }
        }
        settings.topBand = map.topBand;
        return settings;
    }

    // A profile with every slot mapped; for tests and measurements.
    static MoreGestureSettings all() {
        MoreGestureSettings settings;
        settings.mapped = (std::uint32_t{1} << moreslot::count) - 1;
        return settings;
    }

    bool any() const { return mapped != 0; }
    bool has(MoreGestureSlot slot) const { return ((mapped >> moreslot::index(slot)) & 1U) != 0; }
    bool anyTipTap() const {
        return has(MoreGestureSlot::tipTapLeft) || has(MoreGestureSlot::tipTapRight);
    }
    // Bit n - 1 set: some swipe with n fingers is mapped.
    std::uint32_t swipeFingers() const {
        std::uint32_t fingers = 0;
        for (std::int64_t n = 1; n <= moreslot::maxSwipeFingers; ++n) {
            const std::uint32_t four = 0xFU << moreslot::index(moreslot::forSwipe(n, {}));
            if ((mapped & four) != 0) {
                fingers |= std::uint32_t{1} << (n - 1);
            }
        }
        return fingers;
    }

    bool operator==(const MoreGestureSettings&) const = default;
};

}  // namespace tactora
