#include "core/gestures/GestureDispatchContext.h"

namespace tactora {

bool GestureDispatchContext::isCurrent(std::int64_t currentGeneration, const Uuid& currentProfile,
                                       std::optional<std::int32_t> currentTargetPID, bool enabled,
                                       bool configuring) const {
    // Absent process ids never match: a context from a moment without a frontmost application
    // could otherwise fire into whichever application comes forward.
    const bool sameTarget =
        targetPID.has_value() && currentTargetPID.has_value() && *targetPID == *currentTargetPID;
    return enabled && !configuring && generation == currentGeneration &&
           profile == currentProfile && sameTarget;
}

}  // namespace tactora
