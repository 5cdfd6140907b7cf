#include "core/profiles/GestureSlots.h"

#include <algorithm>
#include <utility>

namespace tactora {

GestureSlots::GestureSlots() : actions(slot::count), shortcuts(slot::count) {}

GestureSlots::GestureSlots(std::vector<ActionIndex> slotActions,
                           std::vector<std::optional<SavedShortcut>> slotShortcuts)
    : actions(std::move(slotActions)), shortcuts(std::move(slotShortcuts)) {}

void GestureSlots::sanitize() {
    sanitizeSlots(actions, shortcuts);
}

bool GestureSlots::isEmpty() const {
    return std::ranges::all_of(
               actions, [](ActionIndex action) { return action == action::defaultAction; }) &&
           std::ranges::none_of(shortcuts,
                                [](const auto& shortcut) { return shortcut.has_value(); });
}

void sanitizeSlots(std::vector<ActionIndex>& actions,
                   std::vector<std::optional<SavedShortcut>>& shortcuts) {
    actions.resize(slot::count, action::defaultAction);
    shortcuts.resize(slot::count, std::nullopt);
    for (std::size_t i = 0; i < slot::count; ++i) {
        if (shortcuts[i] && !shortcuts[i]->isValid()) {
            shortcuts[i].reset();
        }
        // Checked after the shortcut, so a custom action whose shortcut was just dropped falls
        // back in the same pass.
        const bool orphanedCustom = actions[i] == action::custom && !shortcuts[i];
        if (!action::isValid(actions[i]) || orphanedCustom) {
            actions[i] = action::defaultAction;
        }
    }
}

}  // namespace tactora
