// Arbitrary bytes as a stored profile list: decoding must never crash, and whatever it accepts
// must survive sanitising, encoding and decoding again unchanged.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "core/profiles/ProfileJson.h"

namespace {

void roundTrip(const std::vector<tactora::WorkProfile>& profiles) {
    const auto json = tactora::encodeProfiles(profiles);
    // Decoded text is valid UTF-8, so it can always be written again.
    if (!json) {
        std::abort();
    }
    if (tactora::decodeProfiles(*json) != profiles) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    auto profiles = tactora::decodeProfiles(input);
    if (!profiles) {
        return 0;
    }
    roundTrip(*profiles);
    for (auto& profile : *profiles) {
        profile.sanitize();
    }
    roundTrip(*profiles);
    return 0;
}
