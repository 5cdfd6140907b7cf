#include "core/devices/TrackpadSettings.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace tactora {

namespace {

// Apple documents neither these domains nor their keys: they are where System Settings keeps
// its trackpad choices today, one domain for the built-in trackpad and one for the Magic
// Trackpad, kept alike by System Settings. The first run on a Mac confirms every name below.
constexpr std::string_view builtInDomain = "com.apple.AppleMultitouchTrackpad";
constexpr std::string_view bluetoothDomain = "com.apple.driver.AppleBluetoothMultitouch.trackpad";

std::optional<std::int64_t> value(const SystemPreferences& preferences, std::string_view key) {
    if (const auto builtIn = preferences.integer(builtInDomain, key)) {
        return builtIn;
    }
    return preferences.integer(bluetoothDomain, key);
}

bool isOn(const SystemPreferences& preferences, std::string_view key, bool otherwise) {
    const std::optional<std::int64_t> stored = value(preferences, key);
    return stored ? *stored != 0 : otherwise;
}

}  // namespace

TrackpadSettings readTrackpadSettings(const SystemPreferences& preferences) {
    const TrackpadSettings defaults;
    TrackpadSettings settings;
    settings.tapToClick = isOn(preferences, "Clicking", defaults.tapToClick);
    settings.secondaryClick = isOn(preferences, "TrackpadRightClick", defaults.secondaryClick);
    settings.threeFingerDrag =
        isOn(preferences, "TrackpadThreeFingerDrag", defaults.threeFingerDrag);
    // 2 is the three-finger tap; 0 leaves Look Up to a force click or to nothing.
    const std::optional<std::int64_t> lookUp = value(preferences, "TrackpadThreeFingerTapGesture");
    settings.lookUpByThreeFingerTap = lookUp ? *lookUp == 2 : defaults.lookUpByThreeFingerTap;
    settings.smartZoom = isOn(preferences, "TrackpadTwoFingerDoubleTapGesture", defaults.smartZoom);
    return settings;
}

}  // namespace tactora
