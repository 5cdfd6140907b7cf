#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

// The gestures beyond the eight of a profile's gesture slots, each with a slot of its own that is
// off (the default action) until the user maps it: one-finger taps by region, tip taps, swipes
// with one to three fingers in four directions, and tap-and-hold.
namespace tactora {

enum class MoreGestureSlot : std::uint8_t {
    tapLeft,      // a one-finger tap on the left half
    tapRight,     // ... on the right half
    tapTop,       // ... in the band nearest the fingertips
    tipTapLeft,   // one finger resting, a short tap of a second to its left
    tipTapRight,  // ... to its right
    swipe1Up,
    swipe1Down,
    swipe1Left,
    swipe1Right,
    swipe2Up,
    swipe2Down,
    swipe2Left,
    swipe2Right,
    swipe3Up,
    swipe3Down,
    swipe3Left,
    swipe3Right,
    tapHold,  // a tap, then a finger that lands and stays: a held button
};

// "Up" is towards the front of the mouse, where the fingertips rest.
enum class SwipeDirection : std::uint8_t { up, down, left, right };

namespace moreslot {

inline constexpr std::size_t count = 18;
inline constexpr std::int64_t maxSwipeFingers = 3;

constexpr std::size_t index(MoreGestureSlot slot) {
    return static_cast<std::size_t>(slot);
}

// The slot of a swipe with 1...3 fingers.
constexpr MoreGestureSlot forSwipe(std::int64_t fingers, SwipeDirection direction) {
    return static_cast<MoreGestureSlot>(index(MoreGestureSlot::swipe1Up) +
                                        static_cast<std::size_t>(fingers - 1) * 4 +
                                        static_cast<std::size_t>(direction));
}

constexpr bool isSwipe(MoreGestureSlot slot) {
    return slot >= MoreGestureSlot::swipe1Up && slot <= MoreGestureSlot::swipe3Right;
}

// The stored name of each slot, in slot order. Names, not positions, are what the profile's
// JSON keeps, so that a slot added later never shifts the meaning of a stored one.
inline constexpr std::array<std::string_view, count> names = {
    "tap.left",     "tap.right",     "tap.top",       "tipTap.left",   "tipTap.right",
    "swipe.1.up",   "swipe.1.down",  "swipe.1.left",  "swipe.1.right", "swipe.2.up",
    "swipe.2.down", "swipe.2.left",  "swipe.2.right", "swipe.3.up",    "swipe.3.down",
    "swipe.3.left", "swipe.3.right", "tapHold",
};

constexpr std::string_view name(MoreGestureSlot slot) {
    return names[index(slot)];
}

constexpr std::optional<MoreGestureSlot> named(std::string_view text) {
    for (std::size_t i = 0; i < count; ++i) {
        if (names[i] == text) {
            return static_cast<MoreGestureSlot>(i);
        }
    }
    return std::nullopt;
}

}  // namespace moreslot

}  // namespace tactora
