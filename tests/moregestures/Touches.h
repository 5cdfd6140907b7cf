#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/gestures/Finger.h"
#include "core/gestures/GestureState.h"
#include "core/moregestures/MoreGestures.h"

namespace tactora::testing {

using Frame = std::vector<Finger>;

inline const Frame lifted;

// Feeds every frame to the tap recogniser and to the further gestures' recognisers, as the
// controller does, and keeps what each decided.
struct Touches {
    explicit Touches(MoreGestureSettings settings) { more.configure(settings); }

    std::optional<MoreGestureEvent> at(double time, const Frame& frame) {
        const std::optional<std::int64_t> tap = taps.update(frame, time);
        if (tap) {
            plainTaps.push_back(*tap);
        }
        const std::optional<MoreGestureEvent> event = more.update(frame, time, taps, tap);
        if (event) {
            events.push_back(*event);
        }
        return event;
    }

    // One finger from `from` to `until`, every 10 ms, then lifted at `until`.
    void oneFingerTouch(double from, double until, double x, double y, std::int64_t id = 1) {
        for (int step = 0; from + step * 0.01 < until; ++step) {
            at(from + step * 0.01, {{id, x, y}});
        }
        at(until, lifted);
    }

    GestureState taps;
    MoreGestures more;
    std::vector<std::int64_t> plainTaps;
    std::vector<MoreGestureEvent> events;
};

inline MoreGestureSettings only(std::initializer_list<MoreGestureSlot> slots) {
    MoreGestureSettings settings;
    for (const MoreGestureSlot slot : slots) {
        settings.mapped |= std::uint32_t{1} << moreslot::index(slot);
    }
    return settings;
}

inline MoreGestureEvent gestureOf(MoreGestureSlot slot) {
    return {.kind = MoreGestureEvent::Kind::gesture, .slot = slot};
}
inline const MoreGestureEvent holdBegan{.kind = MoreGestureEvent::Kind::holdBegan,
                                        .slot = MoreGestureSlot::tapHold};
inline const MoreGestureEvent holdEnded{.kind = MoreGestureEvent::Kind::holdEnded,
                                        .slot = MoreGestureSlot::tapHold};

}  // namespace tactora::testing
