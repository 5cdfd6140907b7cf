#pragma once

#include <cstdint>

namespace tactora {

// Modifier bits in the layout of the platform's key event modifier flags.
struct ModifierFlags {
    static constexpr std::uint64_t capsLock = 0x10000;
    static constexpr std::uint64_t shift = 0x20000;
    static constexpr std::uint64_t control = 0x40000;
    static constexpr std::uint64_t option = 0x80000;
    static constexpr std::uint64_t command = 0x100000;
    static constexpr std::uint64_t numericPad = 0x200000;
    static constexpr std::uint64_t help = 0x400000;
    static constexpr std::uint64_t function = 0x800000;
};

}  // namespace tactora
