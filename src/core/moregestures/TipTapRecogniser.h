#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/gestures/Finger.h"
#include "core/gestures/GestureState.h"
#include "core/moregestures/ContactPoint.h"
#include "core/profiles/MoreGestureSlot.h"

namespace tactora {

// Tip taps: with one finger resting still, a short tap of a second finger to its left or right.
//
// The resting finger must have rested for restBefore when the second lands, which is the longest
// a tap may last: the touch is then too long to be a plain tap, so a tip tap is never also a
// two-finger tap, and the resting finger's own lift is no tap at all. The second finger's touch
// must last as a tap does (shortest to longest tap), and no finger of the touch may have moved
// farther than the tap's tolerance: the tap recogniser's own `moved`, which it keeps for the
// same touch, says so. Each such tap of a second finger while the first keeps resting is one tip
// tap. A third finger spoils the tap under way; a physical click, any movement, or the resting
// finger lifting ends tip taps for the rest of the touch.
//
// A plain value, fed on the main thread.
class TipTapRecogniser {
  public:
    static constexpr double restBefore = GestureState::longestTap;

    // One frame with at least one finger, and whether the tap recogniser has seen a finger of
    // this touch move. The tip tap's slot on the frame that the tapping finger lifts in,
    // otherwise nothing.
    std::optional<MoreGestureSlot> update(std::span<const Finger> frame, double time, bool moved);
    // The mouse's button went down during the touch.
    void physicalClick() { phase_ = Phase::over; }
    // The touch ended, or everything is dropped: the next frame starts afresh. Waiting, the
    // recogniser sets every point and time before it reads them, so only the phase goes back.
    void reset() { phase_ = Phase::waiting; }

  private:
    enum class Phase : std::uint8_t {
        waiting,  // no finger rests yet
        resting,  // one finger rests alone
        tapping,  // a second finger is down beside it
        blocked,  // more fingers than a tip tap has: wait until the resting finger is alone
        over,     // nothing more in this touch
    };

    // Every frame but the steady one of the resting finger alone.
    std::optional<MoreGestureSlot> step(std::span<const Finger> frame, double time);
    std::optional<MoreGestureSlot> restingAlone(double time);
    void besideResting(const Finger& other, double time);

    Phase phase_ = Phase::waiting;
    ContactPoint resting_;
    double restingSince_ = 0;
    ContactPoint tapping_;
    double tappingSince_ = 0;
};

// The steady frame of the finger resting alone is decided here, inlined into the frame handler.
inline std::optional<MoreGestureSlot> TipTapRecogniser::update(std::span<const Finger> frame,
                                                               double time, bool moved) {
    if (phase_ == Phase::over) {
        return std::nullopt;
    }
    if (moved) {
        phase_ = Phase::over;
        return std::nullopt;
    }
    if (phase_ == Phase::resting && frame.size() == 1 && frame[0].id == resting_.id) {
        return std::nullopt;
    }
    return step(frame, time);
}

}  // namespace tactora
