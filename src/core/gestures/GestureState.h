#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/gestures/Finger.h"
#include "core/gestures/FingerOrigins.h"

namespace tactora {

// The tap recogniser's state for one touch sequence: a plain copyable value with no clock of
// its own. A touch sequence runs from the first non-empty frame to the next empty one; a
// sequence that was short, still, clicked-free and had 1 to 4 fingers is reported as a tap of
// its peak finger count when the last finger lifts.
//
// Not thread-safe; the application feeds it on the main thread only.
struct GestureState {
    static constexpr double shortestTap = 0.035;        // seconds; shorter is noise
    static constexpr double longestTap = 0.3;           // seconds; longer is a press or a rest
    static constexpr double movementTolerance = 0.045;  // normalised surface units
    static constexpr std::int64_t maxFingers = 4;

    std::int64_t count = 0;       // fingers in the most recent frame
    std::optional<double> began;  // time of the sequence's first non-empty frame
    std::int64_t peak = 0;        // largest finger count of the sequence
    FingerOrigins origins;
    bool moved = false;    // some finger went farther than the tolerance from its origin
    bool clicked = false;  // a physical click happened during the sequence
    bool invalid = false;  // more than four fingers were down at some moment

    // Feeds one frame, stamped `time` seconds on a monotonic clock; time stamps never decrease.
    // Returns the tap's finger count (1...4) when this (empty) frame ends a sequence that
    // qualifies as a tap; otherwise nothing. An empty frame always ends the sequence.
    std::optional<std::int64_t> update(std::span<const Finger> frame, double time);

    // The mouse's physical button went down during the current sequence.
    void physicalClick();

    // Back to the initial state.
    void reset();

    bool operator==(const GestureState&) const = default;
};

}  // namespace tactora
