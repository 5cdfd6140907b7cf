#pragma once

#include <optional>
#include <string>

#include "core/actions/ActionIndex.h"
#include "core/gestures/GestureDispatchContext.h"
#include "core/platform/MouseButton.h"
#include "core/profiles/SavedShortcut.h"

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
    std::string value;               // what an extra action opens or runs

    bool operator==(const Press&) const = default;
};

}  // namespace tactora
