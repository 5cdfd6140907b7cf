#pragma once

#include <cstdint>

namespace tactora {

// A synthetic key event: one half (down or up) of a key press.
struct KeyEvent {
    std::uint16_t keyCode = 0;  // virtual key code
    bool down = true;
    std::uint64_t flags = 0;    // replaces the event's own modifier flags
    std::int64_t userData = 0;  // event::sourceUserData

    bool operator==(const KeyEvent&) const = default;
};

}  // namespace tactora
