#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/profiles/GestureSlot.h"
#include "core/profiles/SlotExtra.h"

namespace tactora {

// The eight gesture slots of one family of surfaces: one action, one optional shortcut and
// optionally one extra action per slot. A profile keeps the Magic Mouse's eight in its own
// members and the trackpads' eight in one of these; both are repaired by the same rules. A plain
// value; any thread may use its own copy.
struct GestureSlots {
    // Eight slots that all do the system's default, without extras.
    GestureSlots();

    // As sanitizeGestureSlots() below.
    void sanitize();

    // The extra action of a slot, if it holds one.
    std::optional<SlotExtra> extraAt(std::size_t slot) const;

    // Nothing mapped and nothing kept: every action is the default, and no slot has a shortcut
    // or an extra. A kept shortcut counts, so that it is not lost when the slots are stored.
    bool isEmpty() const;

    std::vector<ActionIndex> actions;
    std::vector<std::optional<SavedShortcut>> shortcuts;
    // The extra actions, by slot: empty when there are none. A slot with an extra holds the
    // default action in `actions`.
    std::vector<std::optional<SlotExtra>> extras;

    bool operator==(const GestureSlots&) const = default;
};

// Exactly eight actions and shortcuts afterwards; invalid shortcuts are dropped and actions
// outside the catalogue, or custom actions without a shortcut, fall back to the default. Then the
// extras: none at all, or exactly eight; a slot keeps its extra only while its action is the
// default, and an extra that needs a value only with one.
void sanitizeGestureSlots(std::vector<ActionIndex>& actions,
                          std::vector<std::optional<SavedShortcut>>& shortcuts,
                          std::vector<std::optional<SlotExtra>>& extras);

// One slot's extra, repaired: it is kept only while the slot's `action` is the default, and one
// that needs a value only with one; an extra that needs none keeps none.
void sanitizeSlotExtra(ActionIndex action, std::optional<SlotExtra>& extra);

// The extra action of a slot in `extras`, if it holds one; nothing past the list's end.
std::optional<SlotExtra> extraInSlot(const std::vector<std::optional<SlotExtra>>& extras,
                                     std::size_t slot);

}  // namespace tactora
