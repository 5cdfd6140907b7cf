#include "core/profiles/WorkProfile.h"

#include <utility>

namespace tactora {

WorkProfile::WorkProfile(std::string profileName, std::vector<ActionIndex> slotActions,
                         std::vector<std::optional<SavedShortcut>> slotShortcuts)
    : WorkProfile(Uuid::random(), std::move(profileName), std::move(slotActions),
                  std::move(slotShortcuts)) {}

WorkProfile::WorkProfile(Uuid profileID, std::string profileName,
                         std::vector<ActionIndex> slotActions,
                         std::vector<std::optional<SavedShortcut>> slotShortcuts)
    : id(profileID),
      name(std::move(profileName)),
      actions(std::move(slotActions)),
      shortcuts(std::move(slotShortcuts)) {}

void WorkProfile::sanitize() {
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
    moreGestures.sanitize();
}

}  // namespace tactora
