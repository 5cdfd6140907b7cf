#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "core/gestures/Finger.h"
#include "core/moregestures/ContactPoint.h"
#include "core/profiles/MoreGestureSlot.h"

namespace tactora {

// Swipes: one, two or three fingers moving together, every one of them farther than
// swipeDistance in the same direction, within swipeTime of the moment that set of fingers was
// complete. Recognised while the fingers move, on the frame that completes the distance, and
// once per touch: whatever the fingers do afterwards, until they all lift, is not another
// swipe.
//
// The set of fingers is measured from where it stood when it was last complete: a finger landing
// or lifting starts the measurement again, so fingers that land a moment apart still swipe
// together, and a finger count whose swipes the caller does not want is never recognised (nor
// does it use up the touch's one swipe). A physical click ends swipes for the rest of the touch.
//
// A plain value, fed on the main thread; allocates nothing.
class SwipeRecogniser {
  public:
    static constexpr double swipeDistance = 0.15;  // normalised surface units, per finger
    static constexpr double swipeTime = 0.5;       // seconds

    // One frame with at least one finger. `wanted` has bit n - 1 set when swipes with n fingers
    // are wanted. The swipe's slot on the frame that completes it, otherwise nothing.
    std::optional<MoreGestureSlot> update(std::span<const Finger> frame, double time,
                                          std::uint32_t wanted);
    // The mouse's button went down during the touch.
    void physicalClick() { over_ = true; }
    // The touch ended, or everything is dropped: the next frame starts afresh. With no set, the
    // next frame starts one and sets its starts and time, so those need not be cleared here.
    void reset() {
        started_ = 0;
        late_ = false;
        over_ = false;
    }

  private:
    // A frame of the set measured, in its time, whose first finger has gone far enough.
    std::optional<MoreGestureSlot> measure(std::span<const Finger> frame, double time,
                                           std::uint32_t wanted);
    // Whether `frame` holds exactly the fingers that are measured.
    bool isTheSet(std::span<const Finger> frame) const {
        if (frame.size() != started_) {
            return false;
        }
        // The surface mostly reports the fingers in the order they were measured in; one pass
        // then says so.
        std::size_t inOrder = 0;
        while (inOrder < started_ && frame[inOrder].id == starts_[inOrder].id) {
            ++inOrder;
        }
        return inOrder == started_ || isTheSetInAnyOrder(frame);
    }
    bool isTheSetInAnyOrder(std::span<const Finger> frame) const;
    // The start of a finger of the set; null for one outside it.
    const ContactPoint* startOf(std::int64_t id) const;
    // The direction in which a finger has moved far enough, if it has.
    static std::optional<SwipeDirection> directionOf(const ContactPoint& from, const Finger& to);
    void startFrom(std::span<const Finger> frame, double time);

    std::array<ContactPoint, moreslot::maxSwipeFingers> starts_{};
    std::size_t started_ = 0;  // fingers in starts_; 0 when no set is being measured
    double startedAt_ = 0;
    bool late_ = false;  // the set's time is up: it swipes no more
    bool over_ = false;
};

// Fingers resting or moving slowly, and fingers landing or lifting, are decided here, inlined
// into the frame handler.
inline std::optional<MoreGestureSlot> SwipeRecogniser::update(std::span<const Finger> frame,
                                                              double time, std::uint32_t wanted) {
    if (over_) {
        return std::nullopt;
    }
    // More fingers than any swipe has: no set, until some lift.
    if (frame.size() > starts_.size()) {
        started_ = 0;
        return std::nullopt;
    }
    if (!isTheSet(frame)) {
        // A finger landed or lifted (or both, between two frames): a new set.
        startFrom(frame, time);
        return std::nullopt;
    }
    // Too late to swipe, or the first finger not yet far enough from its start to swipe in any
    // direction: nothing to measure.
    if (late_) {
        return std::nullopt;
    }
    const ContactPoint& first = starts_[0];
    const Finger* now = findFinger(frame, first.id);
    if (std::abs(now->x - first.x) < swipeDistance && std::abs(now->y - first.y) < swipeDistance) {
        return std::nullopt;
    }
    return measure(frame, time, wanted);
}

}  // namespace tactora
