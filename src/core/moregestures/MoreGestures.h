#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/gestures/Finger.h"
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

    // One frame, stamped as the tap recogniser's was, and what the tap recogniser returned for
    // it (the tap's finger count when this empty frame ended a tap).
    std::optional<MoreGestureEvent> update(std::span<const Finger> frame, double time,
                                           std::optional<std::int64_t> tap) {
        if (!settings_.any()) {
            return std::nullopt;
        }
        return frame.empty() ? touchEnded(time, tap) : touched(frame, time);
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

  private:
    std::optional<MoreGestureEvent> touched(std::span<const Finger> frame, double time);
    std::optional<MoreGestureEvent> touchEnded(double time, std::optional<std::int64_t> tap);
    static std::optional<MoreGestureEvent> holdEvent(std::optional<TapHold::Change> change);

    MoreGestureSettings settings_;
    bool touching_ = false;  // between a touch's first frame and its empty frame
    ContactPoint landing_;   // the touch's first finger, where it landed
    bool swallowing_ = false;
    TipTapRecogniser tipTaps_;
    SwipeRecogniser swipes_;
    TapHold hold_;
};

}  // namespace tactora
