// Arbitrary bytes as an icon file, both as they come and behind a container header that
// matches their length, so that the entries and image headers are reached: reading must never
// crash, and every width it reports must be positive.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "core/console/IcnsReader.h"

namespace {

void check(std::span<const std::uint8_t> bytes) {
    const auto widths = tactora::icnsPixelWidths(bytes);
    if (!widths) {
        return;
    }
    for (const std::int64_t width : *widths) {
        if (width <= 0) {
            std::abort();
        }
    }
}

std::vector<std::uint8_t> withContainerHeader(const std::uint8_t* data, std::size_t size) {
    const std::uint64_t total = size + 8;
    std::vector<std::uint8_t> bytes{'i', 'c', 'n', 's'};
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<std::uint8_t>(total >> shift));
    }
    bytes.insert(bytes.end(), data, data + size);
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    check({data, size});
    check(withContainerHeader(data, size));
    return 0;
}
