#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/profiles/MoreGestureSlot.h"

namespace tactora {

// What a hand meant by one touch of the surface: a gesture, or nothing at all.
enum class TouchIntent {
    tap,       // an intended tap with `fingers` fingers
    click,     // an intended physical click with `fingers` fingers resting
    accident,  // not meant as a gesture; `accident` says what it was
    gesture,   // an intended gesture beyond the taps and clicks; `slot` says which
};

// The kinds of touch that are not meant as gestures.
enum class AccidentKind {
    palm,         // the palm resting on, or brushing, the back of the surface
    thumb,        // the thumb touching the side
    scroll,       // fingers scrolling
    scrollGraze,  // a finger grazing the surface during or just after a scroll
    reposition,   // fingers shifting their grip to move the mouse
    clickLift,    // a finger losing contact for a moment during a click, and what follows
    drumming,     // fingers drumming idly, one after another
    pickUp,       // the hand picking the mouse up
    // Touches that could be mistaken for the gestures beyond the taps and clicks:
    shortScroll,    // fingers scrolling slowly or briefly, short of a swipe
    restingFinger,  // a finger resting while another taps beside it, up to its own lift
    restAfterTap,   // a touch that comes to rest soon after a tap, not meant to hold anything
};

inline constexpr std::size_t accidentKindCount = 11;

// One labelled touch: from its first contact landing to its last contact lifting, in seconds
// on the trace's clock, and what the hand meant. Labels may nest: a tap made while the palm
// rests lies inside the palm's label.
struct TouchLabel {
    double start = 0;
    double end = 0;
    TouchIntent intent = TouchIntent::tap;
    std::int64_t fingers = 0;  // 1 to 4 for a tap or a click; 0 otherwise
    AccidentKind accident = AccidentKind::palm;
    MoreGestureSlot slot = MoreGestureSlot::tapLeft;  // for a gesture beyond the taps and clicks

    bool operator==(const TouchLabel&) const = default;
};

// "palm", "thumb", "scroll", "scroll-graze", "reposition", "click-lift", "drumming", "pick-up",
// "short-scroll", "resting-finger", "rest-after-tap".
std::string_view accidentWord(AccidentKind kind);
std::optional<AccidentKind> accidentFromWord(std::string_view word);

}  // namespace tactora
