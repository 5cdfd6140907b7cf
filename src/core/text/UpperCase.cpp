#include "core/text/UpperCase.h"

#include <cstddef>

#include "core/text/Utf8.h"

namespace tactora {

namespace {

constexpr char32_t sharpS = 0xDF;

bool between(char32_t c, char32_t first, char32_t last) {
    return c >= first && c <= last;
}

// Blocks where upper and lower case alternate: the upper case letter sits at the even (or, with
// `upperOdd`, the odd) code point and its lower case one just after (before) it.
char32_t alternating(char32_t c, bool upperOdd) {
    const bool odd = (c & 1U) != 0;
    return odd == upperOdd ? c : c - 1;
}

char32_t latinUpper(char32_t c) {
    if (between(c, 'a', 'z') || (between(c, 0xE0, 0xFE) && c != 0xF7)) {
        return c - 0x20;
    }
    switch (c) {
        case 0xB5:
            return 0x39C;
        case 0xFF:
            return 0x178;
        case 0x131:
            return 'I';
        case 0x17F:
            return 'S';
        default:
            break;
    }
    if (between(c, 0x100, 0x137) || between(c, 0x14A, 0x177)) {
        return alternating(c, false);
    }
    if (between(c, 0x139, 0x148) || between(c, 0x179, 0x17E)) {
        return alternating(c, true);
    }
    return c;
}

char32_t greekUpper(char32_t c) {
    if (between(c, 0x3B1, 0x3C1) || between(c, 0x3C3, 0x3CB)) {
        return c - 0x20;
    }
    switch (c) {
        case 0x3C2:
            return 0x3A3;
        case 0x3AC:
            return 0x386;
        case 0x3CC:
            return 0x38C;
        default:
            break;
    }
    if (between(c, 0x3AD, 0x3AF)) {
        return c - 0x25;
    }
    if (between(c, 0x3CD, 0x3CE)) {
        return c - 0x3F;
    }
    return c;
}

char32_t otherUpper(char32_t c) {
    if (between(c, 0x430, 0x44F)) {
        return c - 0x20;
    }
    if (between(c, 0x450, 0x45F)) {
        return c - 0x50;
    }
    if (between(c, 0x460, 0x481) || between(c, 0x48A, 0x4BF)) {
        return alternating(c, false);
    }
    if (between(c, 0x561, 0x586)) {
        return c - 0x30;
    }
    if (between(c, 0xFF41, 0xFF5A)) {
        return c - 0x20;
    }
    return c;
}

char32_t upper(char32_t c) {
    if (c < 0x180) {
        return latinUpper(c);
    }
    if (c < 0x400) {
        return greekUpper(c);
    }
    return otherUpper(c);
}

}  // namespace

std::string upperCased(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const char32_t c = utf8::decode(text, offset);
        if (c == sharpS) {
            result += "SS";
        } else {
            utf8::append(result, upper(c));
        }
    }
    return result;
}

}  // namespace tactora
