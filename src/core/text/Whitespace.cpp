#include "core/text/Whitespace.h"

#include <cstddef>

#include "core/text/Utf8.h"

namespace tactora {

bool isWhitespaceOrNewline(char32_t c) {
    return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F ||
           c == 0x205F || c == 0x3000;
}

std::string_view trimWhitespaceAndNewlines(std::string_view text) {
    std::size_t begin = text.size();
    std::size_t end = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t start = offset;
        if (!isWhitespaceOrNewline(utf8::decode(text, offset))) {
            begin = std::min(begin, start);
            end = offset;
        }
    }
    return begin < end ? text.substr(begin, end - begin) : std::string_view{};
}

}  // namespace tactora
