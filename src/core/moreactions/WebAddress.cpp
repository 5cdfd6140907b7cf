#include "core/moreactions/WebAddress.h"

#include <algorithm>
#include <cctype>

namespace tactora {

namespace {

bool isAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isSchemeCharacter(char c) {
    return isAsciiLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
}

bool isBlankOrControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte <= 0x20 || byte == 0x7F;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlankOrControl(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlankOrControl(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::string lowered(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char c) {
        return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    });
    return result;
}

// The scheme, when the text starts with one and a colon.
std::optional<std::string_view> schemeOf(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos || colon == 0 || !isAsciiLetter(text.front())) {
        return std::nullopt;
    }
    const std::string_view scheme = text.substr(0, colon);
    if (!std::ranges::all_of(scheme, isSchemeCharacter)) {
        return std::nullopt;
    }
    return scheme;
}

// A host name as people type it without a scheme: a dot, and no "@" that would make it a mail
// address.
bool looksLikeHost(std::string_view text) {
    const std::string_view host = text.substr(0, text.find_first_of("/?#"));
    return host.find('.') != std::string_view::npos && host.front() != '.' && host.back() != '.' &&
           host.find('@') == std::string_view::npos;
}

}  // namespace

std::optional<std::string> webAddress(std::string_view typed) {
    const std::string_view text = trimmed(typed);
    if (text.empty() || std::ranges::any_of(text, isBlankOrControl)) {
        return std::nullopt;
    }
    const std::optional<std::string_view> scheme = schemeOf(text);
    if (!scheme) {
        if (!looksLikeHost(text)) {
            return std::nullopt;
        }
        return "https://" + std::string(text);
    }
    const std::string_view rest = text.substr(scheme->size() + 1);
    if (rest.empty()) {
        return std::nullopt;
    }
    const std::string name = lowered(*scheme);
    if (name == "http" || name == "https") {
        if (!rest.starts_with("//") || rest.size() == 2 || rest[2] == '/') {
            return std::nullopt;
        }
    }
    return std::string(text);
}

}  // namespace tactora
