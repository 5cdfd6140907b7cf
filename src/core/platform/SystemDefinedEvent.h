#pragma once

#include <cstdint>

namespace tactora {

// A synthetic system-defined event, the kind the keyboard's media and volume keys produce.
struct SystemDefinedEvent {
    std::int16_t subtype = 0;
    std::int64_t data1 = 0;
    std::uint64_t modifierFlags = 0;
    std::int64_t userData = 0;  // event::sourceUserData

    bool operator==(const SystemDefinedEvent&) const = default;
};

}  // namespace tactora
