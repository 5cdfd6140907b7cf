#include "core/devices/ControllerGestureRunner.h"

#include <cstddef>
#include <optional>

#include "core/profiles/GestureSlot.h"
#include "core/support/Fatal.h"

namespace tactora {

SlotAction ControllerGestureRunner::trackpadSlot(std::int64_t slot) {
    if (!slot::isValid(slot)) {
        fatalError("Gesture slot out of range");
    }
    const GestureSlots& slots = controller_.profiles().current().trackpad;
    const auto index = static_cast<std::size_t>(slot);
    if (const std::optional<SlotExtra> extra = slots.extraAt(index)) {
        return {.action = action::index(extra->action),
                .shortcut = std::nullopt,
                .value = extra->value};
    }
    // A sanitised profile has exactly eight of each.
    return {.action = slots.actions.at(index), .shortcut = slots.shortcuts.at(index), .value = {}};
}

}  // namespace tactora
