#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "core/platform/SurfaceContact.h"

namespace tactora {

// Everything the live view of the touch surface shows at one moment, decided by the core;
// the shell draws exactly this and nothing of its own.
struct SurfaceSnapshot {
    static constexpr std::size_t capacity = 16;

    // The contacts to draw, in the order the surface reported them.
    std::array<SurfaceContact, capacity> contactStorage{};
    std::size_t contactCount = 0;
    // Fingers on the surface now, and the same as a localised text ("2 fingers").
    std::int64_t fingers = 0;
    std::string fingersText;
    // While `highlighted`, the gesture just recognised ("2-finger tap") and the name of the
    // action it performed (empty when none ran) are shown; otherwise neither is.
    bool highlighted = false;
    std::string gestureText;
    std::string actionText;
    // For a moment after a touch, or the action it stood for, came to nothing: why, in words
    // ("A finger moved too far."); empty otherwise.
    std::string reasonText;
    // What VoiceOver reads: the finger count and the last gesture, highlighted or not.
    std::string accessibilityText;
    // What VoiceOver announces as this snapshot is shown: the gesture just recognised, or the
    // action it just performed, or the accessibility text when both are new, or why a touch
    // just came to nothing; empty when nothing new happened since the last one.
    std::string announcement;

    std::span<const SurfaceContact> contacts() const {
        return std::span(contactStorage).first(contactCount);
    }

    bool operator==(const SurfaceSnapshot&) const = default;
};

}  // namespace tactora
