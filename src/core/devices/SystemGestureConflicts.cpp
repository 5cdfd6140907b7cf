#include "core/devices/SystemGestureConflicts.h"

#include <cstddef>

#include "core/profiles/GestureSlot.h"

namespace tactora {

namespace {

bool competes(std::int64_t slot, SystemTrackpadGesture gesture, const TrackpadSettings& settings) {
    switch (gesture) {
        case SystemTrackpadGesture::tapToClick:
            return settings.tapToClick && slot == slot::forTap(1);
        case SystemTrackpadGesture::secondaryClick:
            return settings.secondaryClick &&
                   (slot == slot::forClick(2) || (settings.tapToClick && slot == slot::forTap(2)));
        case SystemTrackpadGesture::threeFingerDrag:
            return settings.threeFingerDrag &&
                   (slot == slot::forTap(3) || slot == slot::forClick(3));
        case SystemTrackpadGesture::lookUp:
            return settings.lookUpByThreeFingerTap && slot == slot::forTap(3);
        case SystemTrackpadGesture::smartZoom:
            return settings.smartZoom && slot == slot::forTap(2);
    }
    return false;
}

// A slot does something of its own with an action other than the default or with an extra
// action (which leaves the default in its `actions`). Short lists are read as far as they go.
bool isMapped(const GestureSlots& trackpad, std::size_t index) {
    if (index < trackpad.actions.size() && trackpad.actions[index] != action::defaultAction) {
        return true;
    }
    return extraInSlot(trackpad.extras, index).has_value();
}

}  // namespace

std::vector<GestureConflict> systemGestureConflicts(const GestureSlots& trackpad,
                                                    const TrackpadSettings& settings) {
    std::vector<GestureConflict> conflicts;
    for (std::size_t index = 0; index < slot::count; ++index) {
        if (!isMapped(trackpad, index)) {
            continue;
        }
        const auto slot = static_cast<std::int64_t>(index);
        for (const SystemTrackpadGesture gesture : systemTrackpadGestures) {
            if (competes(slot, gesture, settings)) {
                conflicts.push_back({slot, gesture});
            }
        }
    }
    return conflicts;
}

std::string_view settingsAddress(SystemTrackpadGesture gesture) {
    // Three-finger drag lives among the pointer options of Accessibility, the rest in the
    // Trackpad pane.
    if (gesture == SystemTrackpadGesture::threeFingerDrag) {
        return "x-apple.systempreferences:com.apple.preference.universalaccess?Mouse";
    }
    return "x-apple.systempreferences:com.apple.preference.trackpad";
}

}  // namespace tactora
