// Arbitrary bytes as a stored profile list: decoding must never crash, and whatever it accepts
// must survive sanitising, encoding and decoding again unchanged. The same bytes as an imported
// file: whatever is imported leaves every id and every application in one profile only.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "core/profiles/MemoryPreferences.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/ProfileJson.h"
#include "core/profiles/ProfileStore.h"

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

void importInto(std::vector<tactora::WorkProfile> imported) {
    tactora::ProfileStore store(std::make_shared<tactora::MemoryPreferences>(), "Default");
    store.assign("com.example.first", store.activeID());
    const std::size_t before = store.profiles().size();
    if (store.importProfiles(std::move(imported)) + before != store.profiles().size()) {
        std::abort();
    }
    std::set<tactora::Uuid> ids;
    std::set<std::string> apps;
    for (const auto& profile : store.profiles()) {
        if (!ids.insert(profile.id).second) {
            std::abort();
        }
        for (const auto& app : profile.apps) {
            if (!apps.insert(app).second) {
                std::abort();
            }
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    auto file = tactora::readProfileFile(input);
    if (auto* imported = std::get_if<std::vector<tactora::WorkProfile>>(&file)) {
        importInto(std::move(*imported));
    }
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
