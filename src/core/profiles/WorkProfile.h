#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/profiles/GestureSlot.h"
#include "core/profiles/GestureSlots.h"
#include "core/profiles/MoreGestureMap.h"
#include "core/profiles/SlotExtra.h"
#include "core/profiles/Uuid.h"

namespace tactora {

// A named set of gesture-to-action assignments, one action and one optional shortcut per
// gesture slot, for the Magic Mouse and, apart from it, for trackpads. The lists are stored as
// given; sanitize() brings them into shape. A plain value, with no shared state: any thread may
// use its own copy.
struct WorkProfile {
    // A new profile with a fresh random id; by default every slot does the system's default.
    explicit WorkProfile(std::string name,
                         std::vector<ActionIndex> actions = std::vector<ActionIndex>(slot::count),
                         std::vector<std::optional<SavedShortcut>> shortcuts =
                             std::vector<std::optional<SavedShortcut>>(slot::count));

    // A profile with a known id, as read back from storage.
    WorkProfile(Uuid id, std::string name, std::vector<ActionIndex> actions,
                std::vector<std::optional<SavedShortcut>> shortcuts);

    // Exactly eight actions and shortcuts afterwards; invalid shortcuts are dropped and actions
    // outside the catalogue, or custom actions without a shortcut, fall back to the default.
    // Then the extras: none at all, or exactly eight; a slot keeps its extra only while its
    // action is the default, and an extra that needs a value only with one. The further
    // gestures are repaired by the same rules as the eight, and the trackpads' eight by exactly
    // the same rules as the Magic Mouse's.
    void sanitize();

    // The extra action of a slot, if it holds one.
    std::optional<SlotExtra> extraAt(std::size_t slot) const;

    Uuid id;
    std::string name;
    std::vector<ActionIndex> actions;
    std::vector<std::optional<SavedShortcut>> shortcuts;
    // Bundle identifiers of the applications that make this profile active while they are in
    // front. sanitize() leaves it alone; the store keeps each application in one profile only.
    std::vector<std::string> apps;
    // The extra actions, by slot: empty when the profile has none. A slot with an extra holds
    // the default action in `actions`, so a reader that knows only `actions` does the system's
    // own behaviour there.
    std::vector<std::optional<SlotExtra>> extras;
    // The gestures beyond the eight, all off until mapped. sanitize() repairs them too.
    MoreGestureMap moreGestures;
    // The same eight gestures on trackpads, kept apart from the Magic Mouse's: nothing is mapped
    // until the user maps it, and a profile stored before trackpads were known has nothing here.
    GestureSlots trackpad;

    bool operator==(const WorkProfile&) const = default;
};

}  // namespace tactora
