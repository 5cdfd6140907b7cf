#include "core/text/Utf8.h"

#include <cstdint>

namespace tactora::utf8 {

namespace {

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}

struct Lead {
    std::size_t length = 0;  // 0: not a lead byte
    char32_t bits = 0;
    char32_t minimum = 0;  // smallest value that needs this length
};

Lead lead(unsigned char byte) {
    if (byte < 0x80U) {
        return {1, byte, 0};
    }
    if ((byte & 0xE0U) == 0xC0U) {
        return {2, byte & 0x1FU, 0x80};
    }
    if ((byte & 0xF0U) == 0xE0U) {
        return {3, byte & 0x0FU, 0x800};
    }
    if ((byte & 0xF8U) == 0xF0U) {
        return {4, byte & 0x07U, 0x10000};
    }
    return {};
}

bool isSurrogate(char32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

}  // namespace

char32_t decode(std::string_view text, std::size_t& offset) {
    const Lead first = lead(static_cast<unsigned char>(text[offset]));
    if (first.length == 0 || offset + first.length > text.size()) {
        ++offset;
        return replacement;
    }
    char32_t codePoint = first.bits;
    for (std::size_t i = 1; i < first.length; ++i) {
        const auto byte = static_cast<unsigned char>(text[offset + i]);
        if (!isContinuation(byte)) {
            ++offset;
            return replacement;
        }
        codePoint = (codePoint << 6U) | (byte & 0x3FU);
    }
    if (codePoint < first.minimum || codePoint > 0x10FFFF || isSurrogate(codePoint)) {
        ++offset;
        return replacement;
    }
    offset += first.length;
    return codePoint;
}

void append(std::string& text, char32_t codePoint) {
    if (codePoint > 0x10FFFF || isSurrogate(codePoint)) {
        codePoint = replacement;
    }
    const auto byte = [](char32_t value) {
        return static_cast<char>(static_cast<std::uint8_t>(value));
    };
    if (codePoint < 0x80) {
        text += byte(codePoint);
    } else if (codePoint < 0x800) {
        text += byte(0xC0U | (codePoint >> 6U));
        text += byte(0x80U | (codePoint & 0x3FU));
    } else if (codePoint < 0x10000) {
        text += byte(0xE0U | (codePoint >> 12U));
        text += byte(0x80U | ((codePoint >> 6U) & 0x3FU));
        text += byte(0x80U | (codePoint & 0x3FU));
    } else {
        text += byte(0xF0U | (codePoint >> 18U));
        text += byte(0x80U | ((codePoint >> 12U) & 0x3FU));
        text += byte(0x80U | ((codePoint >> 6U) & 0x3FU));
        text += byte(0x80U | (codePoint & 0x3FU));
    }
}

bool isValid(std::string_view text) {
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t start = offset;
        if (decode(text, offset) == replacement && text.substr(start, offset - start) != "\uFFFD") {
            return false;
        }
    }
    return true;
}

std::string repaired(std::string_view text) {
    if (isValid(text)) {
        return std::string(text);
    }
    std::string result;
    result.reserve(text.size() + 8);
    for (std::size_t offset = 0; offset < text.size();) {
        append(result, decode(text, offset));
    }
    return result;
}

}  // namespace tactora::utf8
