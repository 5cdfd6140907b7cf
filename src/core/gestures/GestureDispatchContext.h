#pragma once

#include <cstdint>
#include <optional>

#include "core/profiles/Uuid.h"

namespace tactora {

// What the world looked like when a gesture was recognised. A scheduled action carries it and
// runs only if it is still current when it comes due. A plain value, captured and checked on
// the main thread and carried by the scheduled work in between.
struct GestureDispatchContext {
    std::int64_t generation = 0;            // the controller's action generation at capture
    Uuid profile;                           // the active work profile at capture
    std::optional<std::int32_t> targetPID;  // the frontmost application's process, if any

    // True when gestures are enabled, nothing is being configured, and generation, profile and
    // frontmost process are unchanged. Two absent process ids never match.
    bool isCurrent(std::int64_t currentGeneration, const Uuid& currentProfile,
                   std::optional<std::int32_t> currentTargetPID, bool enabled,
                   bool configuring) const;

    bool operator==(const GestureDispatchContext&) const = default;
};

}  // namespace tactora
