#include "core/profiles/GestureSlots.h"

#include <algorithm>

#include "core/actions/ExtraActionInfo.h"

namespace tactora {

namespace {

void sanitizeExtras(const std::vector<ActionIndex>& actions,
                    std::vector<std::optional<SlotExtra>>& extras) {
    extras.resize(slot::count, std::nullopt);
    for (std::size_t i = 0; i < slot::count; ++i) {
        sanitizeSlotExtra(actions[i], extras[i]);
    }
    if (std::ranges::none_of(extras, [](const auto& extra) { return extra.has_value(); })) {
        extras.clear();
    }
}

}  // namespace

void sanitizeSlotExtra(ActionIndex action, std::optional<SlotExtra>& extra) {
    if (!extra) {
        return;
    }
    const ActionValueKind kind = catalogue::info(extra->action).value;
    if (kind == ActionValueKind::none) {
        extra->value.clear();
    }
    // A slot that an older copy gave another action keeps that action in both copies.
    if (action != action::defaultAction ||
        (kind != ActionValueKind::none && extra->value.empty())) {
        extra.reset();
    }
}

GestureSlots::GestureSlots() : actions(slot::count), shortcuts(slot::count) {}

void GestureSlots::sanitize() {
    sanitizeGestureSlots(actions, shortcuts, extras);
}

std::optional<SlotExtra> GestureSlots::extraAt(std::size_t slot) const {
    return extraInSlot(extras, slot);
}

bool GestureSlots::isEmpty() const {
    return std::ranges::all_of(
               actions, [](ActionIndex action) { return action == action::defaultAction; }) &&
           std::ranges::none_of(shortcuts,
                                [](const auto& shortcut) { return shortcut.has_value(); }) &&
           std::ranges::none_of(extras, [](const auto& extra) { return extra.has_value(); });
}

void sanitizeGestureSlots(std::vector<ActionIndex>& actions,
                          std::vector<std::optional<SavedShortcut>>& shortcuts,
                          std::vector<std::optional<SlotExtra>>& extras) {
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
    sanitizeExtras(actions, extras);
}

std::optional<SlotExtra> extraInSlot(const std::vector<std::optional<SlotExtra>>& extras,
                                     std::size_t slot) {
    return slot < extras.size() ? extras[slot] : std::nullopt;
}

}  // namespace tactora
