#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tactora {

// A 128-bit universally unique identifier. A plain value; every member may be called from any
// thread.
class Uuid {
  public:
    // The nil identifier (all zero bits); never produced by random().
    constexpr Uuid() = default;
    explicit constexpr Uuid(const std::array<std::uint8_t, 16>& bytes) : bytes_(bytes) {}

    // A fresh version-4 identifier from the system's random source.
    static Uuid random();

    // Parses the canonical 36-character form (8-4-4-4-12 hexadecimal groups), in either case.
    // Anything else, including braces, surrounding spaces or a missing hyphen, is rejected.
    static std::optional<Uuid> parse(std::string_view text);

    // The canonical form in upper case, for example "E621E1F8-C36C-495A-93FC-0C247A3E6E5F".
    std::string text() const;

    const std::array<std::uint8_t, 16>& bytes() const { return bytes_; }

    constexpr bool operator==(const Uuid&) const = default;

    // Byte order, written out because not every standard library gives std::array a <=>.
    constexpr std::strong_ordering operator<=>(const Uuid& other) const {
        for (std::size_t i = 0; i < bytes_.size(); ++i) {
            if (bytes_[i] != other.bytes_[i]) {
                return bytes_[i] < other.bytes_[i] ? std::strong_ordering::less
                                                   : std::strong_ordering::greater;
            }
        }
        return std::strong_ordering::equal;
    }

  private:
    std::array<std::uint8_t, 16> bytes_{};
};

}  // namespace tactora
