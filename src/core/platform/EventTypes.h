#pragma once

#include <cstdint>
#include <initializer_list>

namespace tactora {

// The platform's input event type numbers.
using EventType = std::uint32_t;
// The platform's integer event field numbers.
using EventField = std::uint32_t;

namespace event {
inline constexpr EventType leftMouseDown = 1;
inline constexpr EventType leftMouseUp = 2;
inline constexpr EventType rightMouseDown = 3;
inline constexpr EventType rightMouseUp = 4;
inline constexpr EventType mouseMoved = 5;
inline constexpr EventType leftMouseDragged = 6;
inline constexpr EventType rightMouseDragged = 7;
inline constexpr EventType keyDown = 10;
inline constexpr EventType scrollWheel = 22;
inline constexpr EventType otherMouseDown = 25;
inline constexpr EventType otherMouseUp = 26;
inline constexpr EventType otherMouseDragged = 27;
// Not events: what the event tap receives when the system has switched it off.
inline constexpr EventType tapDisabledByTimeout = 0xFFFFFFFE;
inline constexpr EventType tapDisabledByUserInput = 0xFFFFFFFF;

inline constexpr EventField clickState = 1;
inline constexpr EventField buttonNumber = 3;
inline constexpr EventField sourceUserData = 42;
// The registry entry id of the device that produced the event.
inline constexpr EventField senderID = 87;

// The bit of each type in an event mask; types of 64 or more contribute nothing.
constexpr std::uint64_t maskOf(std::initializer_list<EventType> types) {
    std::uint64_t mask = 0;
    for (const EventType type : types) {
        if (type < 64) {
            mask |= std::uint64_t{1} << type;
        }
    }
    return mask;
}

// What the event tap listens to: the left and right buttons' downs, ups and drags, and the
// scroll wheel.
inline constexpr std::uint64_t tapMask =
    maskOf({leftMouseDown, leftMouseUp, rightMouseDown, rightMouseUp, leftMouseDragged,
            rightMouseDragged, scrollWheel});
static_assert(tapMask == 0x4000DE);
}  // namespace event

}  // namespace tactora
