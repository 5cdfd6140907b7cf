#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/platform/ContactShape.h"

namespace tactora {

// One contact frame as the sensor delivered it, copied into fixed storage so that handing it
// from the sensor's thread to the main thread allocates nothing of its own. Contacts beyond
// `capacity` are dropped: that many fingers spoil a tap anyway.
struct ContactFrame {
    static constexpr std::size_t capacity = 16;

    std::size_t count = 0;
    std::array<std::int32_t, capacity> ids{};
    std::array<float, capacity> xs{};
    std::array<float, capacity> ys{};
    // One per contact when the sensor reports shapes.
    bool hasShapes = false;
    std::array<ContactShape, capacity> shapes{};
    // The device it came from, for the devices beside the Magic Mouse (see TouchDevices); 0
    // for the Magic Mouse's own frames.
    std::uint64_t device = 0;
};

}  // namespace tactora
