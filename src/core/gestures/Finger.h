#pragma once

#include <cstdint>

namespace tactora {

// One contact in one frame of the touch surface. Positions are normalised to 0...1.
struct Finger {
    constexpr Finger(std::int64_t fingerID, double atX, double atY)
        : id(fingerID), x(atX), y(atY) {}

    std::int64_t id;  // stable while the finger stays down
    double x;
    double y;

    constexpr bool operator==(const Finger&) const = default;
};

}  // namespace tactora
