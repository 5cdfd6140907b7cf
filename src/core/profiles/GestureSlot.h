#pragma once

#include <cstddef>
#include <cstdint>

// A profile has one action per gesture slot: physical clicks with 1...4 fingers resting take
// slots 0...3, taps with 1...4 fingers take slots 4...7.
namespace tactora::slot {
inline constexpr std::size_t count = 8;

constexpr std::int64_t forClick(std::int64_t fingers) {
    return fingers - 1;
}
constexpr std::int64_t forTap(std::int64_t fingers) {
    return fingers + 3;
}
constexpr bool isValid(std::int64_t index) {
    return index >= 0 && index < std::int64_t{count};
}
}  // namespace tactora::slot
