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
    sanitizeGestureSlots(actions, shortcuts, extras);
    moreGestures.sanitize();
    trackpad.sanitize();
}

std::optional<SlotExtra> WorkProfile::extraAt(std::size_t slot) const {
    return extraInSlot(extras, slot);
}

}  // namespace tactora
