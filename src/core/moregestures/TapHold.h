#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/gestures/Finger.h"
#include "core/gestures/GestureState.h"
#include "core/moregestures/ContactPoint.h"

namespace tactora {

// Tap and hold: a one-finger tap, then within landingGap a single finger that lands and rests.
// Once it has rested, still (the tap recogniser has not seen it move), for longer than the longest
// tap (so that the touch can no longer be a tap, and a quick double tap never holds anything), the
// hold begins; it ends when that finger lifts, when the mouse's button goes down, or when the
// caller drops everything (pause, wake, a profile change). Every hold that begins ends exactly
// once.
//
// States: idle; armed (a tap just ended); landed (a finger came down in time and is resting);
// holding; spent (the hold ended, or was refused, and the touch goes on without it).
//
// A plain value, fed on the main thread.
class TapHold {
  public:
    static constexpr double landingGap = 0.25;  // seconds from the tap's lift to the landing
    static constexpr double holdAfter = GestureState::longestTap;  // resting longer than this

    enum class Phase : std::uint8_t { idle, armed, landed, holding, spent };
    enum class Change : std::uint8_t { began, ended };

    // One frame with at least one finger, and whether the tap recogniser has seen a finger of
    // this touch move farther than a tap may.
    std::optional<Change> update(std::span<const Finger> frame, double time, bool moved);
    // The last finger lifted at `time`; `tapped` when that touch was a one-finger tap that may
    // lead a hold. Ends a hold still under way.
    std::optional<Change> touchEnded(double time, bool tapped);
    // The mouse's button went down: ends a hold, and no hold follows in this touch.
    std::optional<Change> physicalClick();
    // Back to idle, ending a hold under way.
    std::optional<Change> cancel();

    Phase phase() const { return phase_; }
    // While a hold is under way, or after one in the same touch, the touch belongs to it.
    bool ownsTouch() const { return phase_ == Phase::holding || phase_ == Phase::spent; }

  private:
    std::optional<Change> leave(Phase next);

    Phase phase_ = Phase::idle;
    double tapEnded_ = 0;
    ContactPoint landing_;
    double landedAt_ = 0;
};

// The per-frame step and the end of a touch are defined here so that they are inlined into the
// frame handler.

inline std::optional<TapHold::Change> TapHold::update(std::span<const Finger> frame, double time,
                                                      bool moved) {
    switch (phase_) {
        case Phase::armed:
            if (frame.size() == 1 && time - tapEnded_ <= landingGap) {
                landing_ = ContactPoint::of(frame[0]);
                landedAt_ = time;
                phase_ = Phase::landed;
            } else {
                phase_ = Phase::idle;
            }
            return std::nullopt;
        case Phase::landed:
            if (frame.size() != 1 || frame[0].id != landing_.id || moved) {
                phase_ = Phase::idle;
                return std::nullopt;
            }
            if (time - landedAt_ > holdAfter) {
                phase_ = Phase::holding;
                return Change::began;
            }
            return std::nullopt;
        case Phase::holding:
            // Other fingers may come and go; the hold lasts as long as its own finger rests.
            if (findFinger(frame, landing_.id) == nullptr) {
                return leave(Phase::spent);
            }
            return std::nullopt;
        case Phase::idle:
        case Phase::spent:
            return std::nullopt;
    }
    return std::nullopt;
}

inline std::optional<TapHold::Change> TapHold::touchEnded(double time, bool tapped) {
    const std::optional<Change> ended = leave(tapped ? Phase::armed : Phase::idle);
    tapEnded_ = time;
    return ended;
}

inline std::optional<TapHold::Change> TapHold::leave(Phase next) {
    const bool held = phase_ == Phase::holding;
    phase_ = next;
    return held ? std::optional<Change>(Change::ended) : std::nullopt;
}

}  // namespace tactora
