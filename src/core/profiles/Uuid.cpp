#include "core/profiles/Uuid.h"

#include <random>

namespace tactora {

namespace {

constexpr std::size_t textLength = 36;

bool isHyphenPosition(std::size_t position) {
    return position == 8 || position == 13 || position == 18 || position == 23;
}

std::optional<std::uint8_t> hexValue(char c) {
    if (c >= '0' && c <= '9') {
        return static_cast<std::uint8_t>(c - '0');
    }
    if (c >= 'a' && c <= 'f') {
        return static_cast<std::uint8_t>(c - 'a' + 10);
    }
    if (c >= 'A' && c <= 'F') {
        return static_cast<std::uint8_t>(c - 'A' + 10);
    }
    return std::nullopt;
}

}  // namespace

Uuid Uuid::random() {
    std::random_device source;
    std::uniform_int_distribution<unsigned int> byte(0, 0xFF);
    std::array<std::uint8_t, 16> bytes{};
    for (auto& b : bytes) {
        b = static_cast<std::uint8_t>(byte(source));
    }
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0FU) | 0x40U);  // version 4
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3FU) | 0x80U);  // RFC 4122 variant
    return Uuid(bytes);
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
    if (text.size() != textLength) {
        return std::nullopt;
    }
    std::array<std::uint8_t, 16> bytes{};
    std::size_t nibble = 0;
    for (std::size_t position = 0; position < textLength; ++position) {
        const char c = text[position];
        if (isHyphenPosition(position)) {
            if (c != '-') {
                return std::nullopt;
            }
            continue;
        }
        const std::optional<std::uint8_t> value = hexValue(c);
        if (!value) {
            return std::nullopt;
        }
        const unsigned shift = nibble % 2 == 0 ? 4U : 0U;
        bytes[nibble / 2] = static_cast<std::uint8_t>(bytes[nibble / 2] | (*value << shift));
        ++nibble;
    }
    return Uuid(bytes);
}

std::string Uuid::text() const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    result.reserve(textLength);
    for (std::size_t i = 0; i < bytes_.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) {
            result.push_back('-');
        }
        result.push_back(digits[bytes_[i] >> 4U]);
        result.push_back(digits[bytes_[i] & 0x0FU]);
    }
    return result;
}

}  // namespace tactora
