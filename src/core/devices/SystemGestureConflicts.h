#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "core/devices/TrackpadSettings.h"
#include "core/profiles/GestureSlots.h"

namespace tactora {

// A gesture of the system's own that a trackpad gesture can compete with.
enum class SystemTrackpadGesture {
    tapToClick,
    secondaryClick,
    threeFingerDrag,
    lookUp,
    smartZoom,
};

// Every one of them, in the order above.
inline constexpr std::array systemTrackpadGestures = {
    SystemTrackpadGesture::tapToClick,      SystemTrackpadGesture::secondaryClick,
    SystemTrackpadGesture::threeFingerDrag, SystemTrackpadGesture::lookUp,
    SystemTrackpadGesture::smartZoom,
};

// A mapped trackpad gesture (its slot) and the system gesture, switched on, that the same
// touch also makes.
struct GestureConflict {
    std::int64_t slot;
    SystemTrackpadGesture with;

    bool operator==(const GestureConflict&) const = default;
};

// Every conflict between the gestures mapped on trackpads (slots whose action is not the
// default, or that hold an extra action) and the system gestures switched on, by slot and then in
// the order of SystemTrackpadGesture:
// - tap to click makes a one-finger tap a click;
// - secondary click makes a two-finger click a right click, and a two-finger tap too when tap
//   to click is on;
// - three-finger drag takes three fingers resting as a held button, so both the three-finger
//   tap and the three-finger click compete with it;
// - Look Up by three-finger tap takes the three-finger tap;
// - Smart Zoom takes a double tap with two fingers, made of two two-finger taps.
// Four-finger gestures compete with none. Pure.
std::vector<GestureConflict> systemGestureConflicts(const GestureSlots& trackpad,
                                                    const TrackpadSettings& settings);

// The System Settings address that shows the setting of a system gesture. Like the preference
// keys, these addresses are not documented and are confirmed by the first run on a Mac.
std::string_view settingsAddress(SystemTrackpadGesture gesture);

}  // namespace tactora
