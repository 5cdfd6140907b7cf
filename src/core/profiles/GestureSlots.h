#pragma once

#include <optional>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/profiles/GestureSlot.h"

namespace tactora {

// One action and one optional shortcut per gesture slot, as a profile keeps them for a family
// of surfaces. A plain value; any thread may use its own copy.
struct GestureSlots {
    // Eight slots that all do the system's default.
    GestureSlots();
    GestureSlots(std::vector<ActionIndex> actions,
                 std::vector<std::optional<SavedShortcut>> shortcuts);

    // Exactly eight actions and shortcuts afterwards; invalid shortcuts are dropped and actions
    // outside the catalogue, or custom actions without a shortcut, fall back to the default.
    void sanitize();

    // Nothing mapped: every action is the default and no slot has a shortcut.
    bool isEmpty() const;

    std::vector<ActionIndex> actions;
    std::vector<std::optional<SavedShortcut>> shortcuts;

    bool operator==(const GestureSlots&) const = default;
};

// The repair rule for one surface's lists, shared by the Magic Mouse's slots of a profile.
void sanitizeSlots(std::vector<ActionIndex>& actions,
                   std::vector<std::optional<SavedShortcut>>& shortcuts);

}  // namespace tactora
