#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tactora {

// The bytes of a text file turned into UTF-8. Pure value; any thread.
struct DecodedText {
    // Everything that decoded, up to the first problem.
    std::string utf8;
    // Why decoding stopped early ("invalid UTF-8", ...); nothing when all of it decoded.
    std::optional<std::string> problem;
};

// Decodes a file's bytes: UTF-16 little- or big-endian when it starts with the matching byte
// order mark, otherwise UTF-8 with or without one. The mark itself is dropped. Stops at the
// first invalid sequence (broken UTF-8, an unpaired surrogate, an odd UTF-16 byte count).
DecodedText decodeText(std::string_view bytes);

// The length of the longest prefix of `text` that is well-formed UTF-8 (no overlong forms, no
// surrogates, nothing above U+10FFFF).
std::size_t validUtf8Length(std::string_view text);

// Appends one code point as UTF-8; a surrogate or a value above U+10FFFF becomes U+FFFD.
void appendUtf8(std::string& output, char32_t codePoint);

}  // namespace tactora
