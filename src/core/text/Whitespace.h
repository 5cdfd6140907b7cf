#pragma once

#include <string_view>

namespace tactora {

// Whether `codePoint` is white space or a line break: the Unicode space separators, the line
// and paragraph separators, tab, line feed, vertical tab, form feed, carriage return and next
// line.
bool isWhitespaceOrNewline(char32_t codePoint);

// `text` (UTF-8) without white space and line breaks at either end.
std::string_view trimWhitespaceAndNewlines(std::string_view text);

}  // namespace tactora
