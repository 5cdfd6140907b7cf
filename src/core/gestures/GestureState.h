#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>

#include "core/gestures/Finger.h"
#include "core/gestures/FingerOrigins.h"
#include "core/gestures/TapThresholds.h"

namespace tactora {

// The tap recogniser's state for one touch sequence: a plain copyable value with no clock of
// its own. A touch sequence runs from the first non-empty frame to the next empty one; a
// sequence that was short, still, clicked-free and had 1 to 4 fingers is reported as a tap of
// its peak finger count when the last finger lifts. How short and how still are `thresholds`,
// the defaults below unless the user changed them.
//
// Not thread-safe; the application feeds it on the main thread only.
struct GestureState {
    static constexpr double shortestTap = TapThresholds{}.shortest;  // shorter is noise
    static constexpr double longestTap = TapThresholds{}.longest;    // longer is a press or a rest
    static constexpr double movementTolerance = TapThresholds{}.tolerance;
    static constexpr std::int64_t maxFingers = 4;

    std::int64_t count = 0;       // fingers in the most recent frame
    std::optional<double> began;  // time of the sequence's first non-empty frame
    std::int64_t peak = 0;        // largest finger count of the sequence
    FingerOrigins origins;        // kept only while the sequence may still be a tap
    bool moved = false;           // some finger went farther than the tolerance from its origin
    bool clicked = false;         // a physical click happened during the sequence
    bool invalid = false;         // more than four fingers were down at some moment
    TapThresholds thresholds;     // kept when the state resets

    // Feeds one frame, stamped `time` seconds on a monotonic clock; time stamps never decrease.
    // Returns the tap's finger count (1...4) when this (empty) frame ends a sequence that
    // qualifies as a tap; otherwise nothing. An empty frame always ends the sequence.
    std::optional<std::int64_t> update(std::span<const Finger> frame, double time);

    // The mouse's physical button went down during the current sequence.
    void physicalClick();

    // Back to the initial state.
    void reset();

    bool operator==(const GestureState&) const = default;

  private:
    // Whether a finger that moved by (dx, dy) is farther than the tolerance from its origin,
    // decided exactly as comparing std::hypot(dx, dy) with it would be. The squared distance is
    // within a few units in the last place of the square of that hypotenuse, so away from the
    // boundary it decides alone, without hypot's careful and slow scaling; near the boundary,
    // and for a distance that is not a number, hypot decides.
    bool isBeyondTolerance(double dx, double dy) const;
    bool isBeyondToleranceNearItsEdge(double dx, double dy) const;
    // The empty frame: the tap's finger count or nothing, then back to the initial state.
    std::optional<std::int64_t> endSequence(double time);
};

// The per-frame path is defined here so that it is inlined into the frame handler that calls it
// about a hundred times a second; the rarer steps stay in GestureState.cpp.

inline bool GestureState::isBeyondTolerance(double dx, double dy) const {
    const double limit = thresholds.tolerance * thresholds.tolerance;
    constexpr double margin = 1e-9;
    const double squared = dx * dx + dy * dy;
    if (squared < limit * (1 - margin)) {
        return false;
    }
    if (squared > limit * (1 + margin)) {
        return true;
    }
    return isBeyondToleranceNearItsEdge(dx, dy);
}

inline std::optional<std::int64_t> GestureState::update(std::span<const Finger> frame,
                                                        double time) {
    count = static_cast<std::int64_t>(frame.size());
    if (frame.empty()) {
        return endSequence(time);
    }
    if (!began) {
        began = time;
        // A click made while nothing touched the surface belongs to no sequence.
        clicked = false;
    }
    peak = std::max(peak, count);
    if (count > maxFingers) {
        invalid = true;
    }
    // Once the sequence can't be a tap, where its fingers go no longer matters: a crowded frame,
    // however many ids it carries, then costs nothing more.
    if (invalid || moved) {
        return std::nullopt;
    }
    for (const Finger& finger : frame) {
        const FingerOrigins::Origin* origin = origins.find(finger.id);
        if (origin == nullptr) {
            origins.insert(finger.id, {finger.x, finger.y});
            continue;
        }
        if (isBeyondTolerance(finger.x - origin->x, finger.y - origin->y)) {
            moved = true;
        }
    }
    return std::nullopt;
}

}  // namespace tactora
