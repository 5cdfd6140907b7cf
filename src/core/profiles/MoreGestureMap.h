#pragma once

#include <array>
#include <optional>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/profiles/MoreGestureSlot.h"

namespace tactora {

// A profile's assignments for the gestures beyond the eight: one action and one optional
// shortcut per slot, and the depth of the top band that region taps tell apart. Every slot
// starts on the default action, which means the gesture is off and the touch does exactly what
// it did without it. A plain value.
struct MoreGestureMap {
    // The top band's depth, as a share of the surface's length from its front edge.
    static constexpr double defaultTopBand = 0.25;
    static constexpr double smallestTopBand = 0.1;
    static constexpr double largestTopBand = 0.5;

    std::array<ActionIndex, moreslot::count> actions{};
    std::array<std::optional<SavedShortcut>, moreslot::count> shortcuts{};
    double topBand = defaultTopBand;

    ActionIndex action(MoreGestureSlot slot) const { return actions[moreslot::index(slot)]; }
    const std::optional<SavedShortcut>& shortcut(MoreGestureSlot slot) const {
        return shortcuts[moreslot::index(slot)];
    }
    bool isMapped(MoreGestureSlot slot) const { return action(slot) != action::defaultAction; }

    // Invalid shortcuts are dropped; actions outside the catalogue, and custom actions without a
    // shortcut, fall back to the default; a top band that is not a number takes the default
    // depth, and one outside its range the nearest end of it.
    void sanitize();

    // Nothing mapped, no shortcut kept and the default depth: what a profile that never had
    // these gestures holds.
    bool isDefault() const;

    bool operator==(const MoreGestureMap&) const = default;
};

}  // namespace tactora
