#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/profiles/MoreGestureSlot.h"
#include "core/profiles/SlotExtra.h"

namespace tactora {

// A profile's assignments for the gestures beyond the eight: one action, one optional shortcut
// and one optional further action per slot, and the depth of the top band that region taps tell
// apart. Every slot starts on the default action, which means the gesture is off and the touch
// does exactly what it did without it. A plain value.
struct MoreGestureMap {
    // The top band's depth, as a share of the surface's length from its front edge.
    static constexpr double defaultTopBand = 0.25;
    static constexpr double smallestTopBand = 0.1;
    static constexpr double largestTopBand = 0.5;

    std::array<ActionIndex, moreslot::count> actions{};
    std::array<std::optional<SavedShortcut>, moreslot::count> shortcuts{};
    // The further actions, by slot, as the eight keep theirs: a slot with one holds the default
    // in `actions`, so that a reader that knows only `actions` leaves the gesture off.
    std::array<std::optional<SlotExtra>, moreslot::count> extras{};
    double topBand = defaultTopBand;

    // The slot's action: its further action's index when it holds one, else its `actions` entry.
    ActionIndex action(MoreGestureSlot slot) const {
        const std::optional<SlotExtra>& held = extra(slot);
        return held ? action::index(held->action) : actions[moreslot::index(slot)];
    }
    const std::optional<SavedShortcut>& shortcut(MoreGestureSlot slot) const {
        return shortcuts[moreslot::index(slot)];
    }
    const std::optional<SlotExtra>& extra(MoreGestureSlot slot) const {
        return extras[moreslot::index(slot)];
    }
    // What the slot's further action opens or runs; empty for every other action.
    std::string value(MoreGestureSlot slot) const {
        const std::optional<SlotExtra>& held = extra(slot);
        return held ? held->value : std::string();
    }
    bool isMapped(MoreGestureSlot slot) const { return action(slot) != action::defaultAction; }

    // Invalid shortcuts are dropped; actions outside the catalogue, and custom actions without a
    // shortcut, fall back to the default; a slot keeps its further action only while its
    // `actions` entry is the default, and one that needs a value only with one; a top band that is
    // not a number takes the default depth, and one outside its range the nearest end of it.
    void sanitize();

    // Nothing mapped, no shortcut kept and the default depth: what a profile that never had
    // these gestures holds.
    bool isDefault() const;

    bool operator==(const MoreGestureMap&) const = default;
};

}  // namespace tactora
