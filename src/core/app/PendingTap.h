#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/gestures/GestureDispatchContext.h"

namespace tactora {

// A recognised tap whose action waits, so that a click arriving just after can still veto it.
struct PendingTap {
    std::int64_t fingers = 0;
    ActionIndex action = action::defaultAction;
    std::optional<SavedShortcut> shortcut;
    std::string value;  // what the slot's further action opens or runs
    GestureDispatchContext context;
    double began = 0;  // when the touch began
    double recognisedAt = 0;
};

}  // namespace tactora
