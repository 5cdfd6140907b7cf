#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/gestures/GestureDispatchContext.h"
#include "core/platform/MouseButton.h"

namespace tactora {

// A physical press of the mouse that is held while it is being rewritten or swallowed, from
// its down event to its up event.
struct Press {
    ActionIndex action = action::defaultAction;
    std::optional<SavedShortcut> shortcut;  // the click slot's shortcut, for the custom action
    // The button the press is turned into; nothing when it is swallowed and its action is
    // performed on release.
    std::optional<MouseButton> button;
    GestureDispatchContext context;  // decides on release whether the action may still run
    std::int64_t fingers = 0;        // the resting fingers of the click it stands for
    std::string value;  // what the click slot's further action opens or runs; empty otherwise

    bool operator==(const Press&) const = default;
};

}  // namespace tactora
