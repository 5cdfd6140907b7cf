#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/gestures/Finger.h"
#include "core/gestures/GestureState.h"
#include "core/moregestures/ContactPoint.h"
#include "core/moregestures/MoreGestureEvent.h"
#include "core/moregestures/MoreGestureSettings.h"
#include "core/moregestures/SwipeRecogniser.h"
#include "core/moregestures/TapHold.h"
#include "core/moregestures/TipTapRecogniser.h"

namespace tactora {

// The recognisers of the further gestures (taps by region, tip taps, swipes, tap and hold), fed
// the same frames as the tap recogniser, beside it. It never changes what the tap recogniser
// decides: it is told that decision, and a region tap is an offer to perform a one-finger tap
// as its region's slot instead. Only mapped slots are ever recognised; with none mapped a frame
// costs one test.
//
// The gestures are told apart by construction: a tip tap and a hold need a finger that rested
// longer than any tap lasts, a swipe needs movement that no tap has, and a region tap is a
// one-finger tap. While a hold is under way the touch belongs to it. At most one event comes
// out of one frame.
//
// A plain value; every call on the main thread, like the tap recogniser's.
class MoreGestures {
  public:
    const MoreGestureSettings& settings() const { return settings_; }
    // New slots, from the active profile. Drops whatever was under way, as cancel() does, and
    // returns the end of a hold that was under way.
    std::optional<MoreGestureEvent> configure(const MoreGestureSettings& settings);

    // One frame, stamped as the tap recogniser's was, after the tap recogniser `taps` was fed
    // it, and what it returned (the tap's finger count when this empty frame ended a tap).
    std::optional<MoreGestureEvent> update(std::span<const Finger> frame, double time,
                                           const GestureState& taps,
                                           std::optional<std::int64_t> tap) {
        if (!settings_.any()) {
            return std::nullopt;
        }
        return frame.empty() ? touchEnded(time, tap) : touched(frame, time, taps.moved);
    }

    // The mouse's button went down. Ends a hold; no tip tap, swipe or hold follows in this
    // touch. A click while no finger touches changes nothing, as for taps.
    std::optional<MoreGestureEvent> physicalClick();

    // Drops everything under way (a pause, a wake, the recogniser's reset) and returns the end
    // of a hold that was under way.
    std::optional<MoreGestureEvent> cancel();

    // Whether the scroll events of the mouse are to be swallowed now: from the frame that
    // recognised a mapped swipe until the fingers lift.
    bool swallowsScroll() const { return swallowing_; }
    // Whether the tap-and-hold slot's button is held now.
    bool holding() const { return hold_.phase() == TapHold::Phase::holding; }
    // Whether a touch, or a tap that may lead a hold, is under way.
    bool busy() const { return touching_ || hold_.phase() != TapHold::Phase::idle; }

  private:
    std::optional<MoreGestureEvent> touched(std::span<const Finger> frame, double time, bool moved);
    static MoreGestureEvent gesture(MoreGestureSlot slot) {
        return MoreGestureEvent{.kind = MoreGestureEvent::Kind::gesture, .slot = slot};
    }
    std::optional<MoreGestureEvent> touchEnded(double time, std::optional<std::int64_t> tap);
    static std::optional<MoreGestureEvent> holdEvent(std::optional<TapHold::Change> change) {
        if (!change) {
            return std::nullopt;
        }
        const auto kind = *change == TapHold::Change::began ? MoreGestureEvent::Kind::holdBegan
                                                            : MoreGestureEvent::Kind::holdEnded;
        return MoreGestureEvent{.kind = kind, .slot = MoreGestureSlot::tapHold};
    }

    MoreGestureSettings settings_;
    // Taken from settings_ once, so that a frame does not work them out again.
    bool holdMapped_ = false;
    bool tipTapsMapped_ = false;
    std::uint32_t swipeFingers_ = 0;
    bool touching_ = false;  // between a touch's first frame and its empty frame
    ContactPoint landing_;   // the touch's first finger, where it landed
    bool swallowing_ = false;
    TipTapRecogniser tipTaps_;
    SwipeRecogniser swipes_;
    TapHold hold_;
};

// The per-frame path is defined here, as the tap recogniser's is, so that it is inlined into the
// frame handler; the end of a touch and the rarer steps stay in MoreGestures.cpp.

inline std::optional<MoreGestureEvent> MoreGestures::touched(std::span<const Finger> frame,
                                                             double time, bool moved) {
    if (!touching_) {
        touching_ = true;
        landing_ = ContactPoint::of(frame[0]);
    }
    // An idle hold waits for the end of the touch; only the other phases look at frames.
    if (holdMapped_ && hold_.phase() != TapHold::Phase::idle) {
        if (std::optional<MoreGestureEvent> event = holdEvent(hold_.update(frame, time, moved))) {
            return event;
        }
        if (hold_.ownsTouch()) {
            return std::nullopt;
        }
    }
    if (tipTapsMapped_) {
        const std::optional<MoreGestureSlot> slot = tipTaps_.update(frame, time, moved);
        if (slot && settings_.has(*slot)) {
            return gesture(*slot);
        }
    }
    if (swipeFingers_ != 0) {
        const std::optional<MoreGestureSlot> slot = swipes_.update(frame, time, swipeFingers_);
        if (slot && settings_.has(*slot)) {
            swallowing_ = true;
            return gesture(*slot);
        }
    }
    return std::nullopt;
}

}  // namespace tactora
