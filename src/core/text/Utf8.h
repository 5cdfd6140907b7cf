#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Code points in and out of UTF-8.
namespace tactora::utf8 {

inline constexpr char32_t replacement = 0xFFFD;

// Decodes the code point that starts at `offset` and moves `offset` past it. A malformed or
// truncated sequence, an overlong form or a surrogate reads as one replacement character that
// covers a single byte, so decoding always advances.
char32_t decode(std::string_view text, std::size_t& offset);

// Appends the UTF-8 form of `codePoint` (a value above U+10FFFF or a surrogate appends the
// replacement character).
void append(std::string& text, char32_t codePoint);

// Whether `text` is well-formed UTF-8 throughout.
bool isValid(std::string_view text);

// `text` with every byte that decode() cannot read replaced by U+FFFD; valid text unchanged.
std::string repaired(std::string_view text);

}  // namespace tactora::utf8
