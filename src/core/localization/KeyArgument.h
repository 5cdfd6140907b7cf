#pragma once

#include <cstdint>

namespace tactora {

// What kind of value a key's argument is: an integer goes through %d and its kin, a string
// through %@.
enum class ArgumentKind : std::uint8_t { integer, string };

// One argument that the callers of a key pass to L, in order. Pure value.
struct KeyArgument {
    ArgumentKind kind = ArgumentKind::integer;
    // Whether the key's text shows it. An argument may be passed without being shown: every
    // sensor status text gets the bridge's error code, and only "sensor.blocked" shows it.
    bool shown = true;

    constexpr bool operator==(const KeyArgument&) const = default;
};

inline constexpr KeyArgument integerArgument{.kind = ArgumentKind::integer};
inline constexpr KeyArgument stringArgument{.kind = ArgumentKind::string};
inline constexpr KeyArgument unshownIntegerArgument{.kind = ArgumentKind::integer, .shown = false};

}  // namespace tactora
