#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

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

    // Where several touch devices are in use: the device the frame came from (see
    // TouchDevices), and each contact's shape as the sensor reported it. A frame of the single
    // Magic Mouse connection leaves them zero.
    std::uint64_t device = 0;
    std::array<float, capacity> sizes{};
    std::array<float, capacity> angles{};
    std::array<float, capacity> majorAxes{};
    std::array<float, capacity> minorAxes{};
};

}  // namespace tactora
