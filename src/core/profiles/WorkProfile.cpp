#include "core/profiles/WorkProfile.h"

#include <algorithm>
#include <utility>

#include "core/actions/ExtraActionInfo.h"

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
    sanitizeExtras();
    moreGestures.sanitize();
}

void WorkProfile::sanitizeExtras() {
    extras.resize(slot::count, std::nullopt);
    for (std::size_t i = 0; i < slot::count; ++i) {
        std::optional<SlotExtra>& extra = extras[i];
        if (!extra) {
            continue;
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
    if (std::ranges::none_of(extras, [](const auto& extra) { return extra.has_value(); })) {
        extras.clear();
    }
}

std::optional<SlotExtra> WorkProfile::extraAt(std::size_t slot) const {
    return slot < extras.size() ? extras[slot] : std::nullopt;
}

}  // namespace tactora
