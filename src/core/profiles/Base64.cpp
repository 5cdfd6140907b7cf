#include "core/profiles/Base64.h"

#include <algorithm>
#include <cstdint>

namespace tactora {

namespace {

constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char padding = '=';

std::optional<std::uint32_t> sextet(char c) {
    const std::size_t position = alphabet.find(c);
    if (position == std::string_view::npos) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(position);
}

}  // namespace

std::string encodeBase64(const Bytes& bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t available = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t group = std::uint32_t{bytes[i]} << 16U;
        if (available > 1) {
            group |= std::uint32_t{bytes[i + 1]} << 8U;
        }
        if (available > 2) {
            group |= std::uint32_t{bytes[i + 2]};
        }
        for (std::size_t k = 0; k < 4; ++k) {
            const bool present = k <= available;
            const auto index = (group >> (18U - 6U * k)) & 0x3FU;
            text.push_back(present ? alphabet[index] : padding);
        }
    }
    return text;
}

std::optional<Bytes> decodeBase64(std::string_view text) {
    if (text.size() % 4 != 0) {
        return std::nullopt;
    }
    Bytes bytes;
    bytes.reserve(text.size() / 4 * 3);
    for (std::size_t i = 0; i < text.size(); i += 4) {
        const bool last = i + 4 == text.size();
        std::size_t padded = 0;
        if (last) {
            padded = text[i + 3] == padding ? (text[i + 2] == padding ? 2 : 1) : 0;
        }
        std::uint32_t group = 0;
        for (std::size_t k = 0; k < 4 - padded; ++k) {
            const std::optional<std::uint32_t> value = sextet(text[i + k]);
            if (!value) {
                return std::nullopt;
            }
            group |= *value << (18U - 6U * k);
        }
        const std::size_t produced = 3 - padded;
        // Bits below the last produced byte must be zero, so each byte string has one spelling.
        const std::uint32_t unused = group & ((std::uint32_t{1} << (8U * (3 - produced))) - 1U);
        if (unused != 0) {
            return std::nullopt;
        }
        for (std::size_t k = 0; k < produced; ++k) {
            bytes.push_back(static_cast<std::uint8_t>(group >> (16U - 8U * k)));
        }
    }
    return bytes;
}

}  // namespace tactora
