#pragma once

#include <cstdint>

namespace tactora {

// Which notices of a mouse arriving or leaving call for a reconnect. Devices are named by their
// registry entry ids; `connected` is the one whose frames flow, 0 while none does.

// A mouse arrived: worth a reconnect only while none is connected; a second mouse does not
// interrupt gestures that work.
constexpr bool arrivalReconnects(std::uint64_t connected) {
    return connected == 0;
}

// A mouse left: only the connected one's departure pauses and reconnects; another device going
// away changes nothing.
constexpr bool departureReconnects(std::uint64_t device, std::uint64_t connected) {
    return connected != 0 && device == connected;
}

}  // namespace tactora
