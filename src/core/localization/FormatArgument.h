#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace tactora {

// One argument of a localised text: an integer (for %d and its kin) or a string (for %@).
using FormatArgument = std::variant<std::int64_t, std::string>;

// Any integer becomes the 64-bit argument; unsigned values keep their bits, so %u shows them
// as they were.
template <std::integral Integer>
requires(!std::same_as<std::remove_cv_t<Integer>, bool>) FormatArgument
    makeFormatArgument(Integer value) {
    return FormatArgument(std::in_place_type<std::int64_t>, static_cast<std::int64_t>(value));
}

inline FormatArgument makeFormatArgument(std::string_view text) {
    return FormatArgument(std::in_place_type<std::string>, text);
}

// Exact overloads for the usual string types, which would otherwise convert equally well to
// std::string_view and to FormatArgument.
inline FormatArgument makeFormatArgument(const std::string& text) {
    return FormatArgument(std::in_place_type<std::string>, text);
}

inline FormatArgument makeFormatArgument(const char* text) {
    return FormatArgument(std::in_place_type<std::string>, text);
}

inline FormatArgument makeFormatArgument(const FormatArgument& argument) {
    return argument;
}

}  // namespace tactora
