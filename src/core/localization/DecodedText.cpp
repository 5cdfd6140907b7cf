#include "core/localization/DecodedText.h"

#include <cstdint>

namespace tactora {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;
constexpr char32_t maxCodePoint = 0x10FFFF;

bool isSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDFFF;
}
bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

bool startsWith(std::string_view bytes, std::string_view prefix) {
    return bytes.substr(0, prefix.size()) == prefix;
}

std::uint8_t byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<std::uint8_t>(bytes[index]);
}

bool isContinuation(std::uint8_t byte) {
    return (byte & 0xC0U) == 0x80U;
}

// The length of the well-formed sequence at `index`, or 0 when it is malformed.
std::size_t sequenceLength(std::string_view text, std::size_t index) {
    const std::uint8_t lead = byteAt(text, index);
    if (lead < 0x80U) {
        return 1;
    }
    std::size_t length = 0;
    std::uint8_t low = 0x80;
    std::uint8_t high = 0xBF;
    if (lead >= 0xC2U && lead <= 0xDFU) {
        length = 2;
    } else if (lead >= 0xE0U && lead <= 0xEFU) {
        length = 3;
        low = lead == 0xE0U ? 0xA0 : 0x80;
        high = lead == 0xEDU ? 0x9F : 0xBF;
    } else if (lead >= 0xF0U && lead <= 0xF4U) {
        length = 4;
        low = lead == 0xF0U ? 0x90 : 0x80;
        high = lead == 0xF4U ? 0x8F : 0xBF;
    } else {
        return 0;
    }
    if (index + length > text.size()) {
        return 0;
    }
    const std::uint8_t second = byteAt(text, index + 1);
    if (second < low || second > high) {
        return 0;
    }
    for (std::size_t next = 2; next < length; ++next) {
        if (!isContinuation(byteAt(text, index + next))) {
            return 0;
        }
    }
    return length;
}

DecodedText decodeUtf8(std::string_view bytes) {
    const std::size_t valid = validUtf8Length(bytes);
    DecodedText decoded;
    decoded.utf8 = bytes.substr(0, valid);
    if (valid < bytes.size()) {
        decoded.problem = "invalid UTF-8";
    }
    return decoded;
}

DecodedText decodeUtf16(std::string_view bytes, bool bigEndian) {
    DecodedText decoded;
    const auto unitAt = [&](std::size_t index) {
        const std::uint8_t first = byteAt(bytes, index);
        const std::uint8_t second = byteAt(bytes, index + 1);
        return bigEndian ? static_cast<char32_t>((first << 8U) | second)
                         : static_cast<char32_t>((second << 8U) | first);
    };
    std::size_t index = 0;
    while (index + 1 < bytes.size()) {
        const char32_t unit = unitAt(index);
        index += 2;
        if (!isSurrogate(unit)) {
            appendUtf8(decoded.utf8, unit);
            continue;
        }
        const bool paired =
            isHighSurrogate(unit) && index + 1 < bytes.size() && isLowSurrogate(unitAt(index));
        if (!paired) {
            decoded.problem = "invalid UTF-16 (unpaired surrogate)";
            return decoded;
        }
        const char32_t low = unitAt(index);
        index += 2;
        appendUtf8(decoded.utf8, 0x10000 + ((unit - 0xD800) << 10U) + (low - 0xDC00));
    }
    if (index < bytes.size()) {
        decoded.problem = "invalid UTF-16 (odd number of bytes)";
    }
    return decoded;
}

}  // namespace

DecodedText decodeText(std::string_view bytes) {
    if (startsWith(bytes, "\xFF\xFE")) {
        return decodeUtf16(bytes.substr(2), false);
    }
    if (startsWith(bytes, "\xFE\xFF")) {
        return decodeUtf16(bytes.substr(2), true);
    }
    if (startsWith(bytes, "\xEF\xBB\xBF")) {
        return decodeUtf8(bytes.substr(3));
    }
    return decodeUtf8(bytes);
}

std::size_t validUtf8Length(std::string_view text) {
    std::size_t index = 0;
    while (index < text.size()) {
        const std::size_t length = sequenceLength(text, index);
        if (length == 0) {
            break;
        }
        index += length;
    }
    return index;
}

void appendUtf8(std::string& output, char32_t codePoint) {
    if (isSurrogate(codePoint) || codePoint > maxCodePoint) {
        codePoint = replacementCharacter;
    }
    const auto put = [&](char32_t bits) { output.push_back(static_cast<char>(bits)); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0U | (codePoint >> 6U));
        put(0x80U | (codePoint & 0x3FU));
    } else if (codePoint < 0x10000) {
        put(0xE0U | (codePoint >> 12U));
        put(0x80U | ((codePoint >> 6U) & 0x3FU));
        put(0x80U | (codePoint & 0x3FU));
    } else {
        put(0xF0U | (codePoint >> 18U));
        put(0x80U | ((codePoint >> 12U) & 0x3FU));
        put(0x80U | ((codePoint >> 6U) & 0x3FU));
        put(0x80U | (codePoint & 0x3FU));
    }
}

}  // namespace tactora
