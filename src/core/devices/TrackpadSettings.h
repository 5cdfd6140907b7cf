#pragma once

#include "core/platform/SystemPreferences.h"

namespace tactora {

// The system's own trackpad gestures that can compete with gestures mapped on a trackpad, as
// the user set them in System Settings. A plain value.
struct TrackpadSettings {
    bool tapToClick = false;
    bool secondaryClick = true;  // click (or, with tap to click, tap) with two fingers
    bool threeFingerDrag = false;
    bool lookUpByThreeFingerTap = false;
    bool smartZoom = true;  // double-tap with two fingers

    bool operator==(const TrackpadSettings&) const = default;
};

// The settings as the system stores them. The values that the system's default settings leave
// unwritten read as those defaults (the member initialisers above). Pure over `preferences`;
// main thread, like the preferences themselves.
TrackpadSettings readTrackpadSettings(const SystemPreferences& preferences);

}  // namespace tactora
