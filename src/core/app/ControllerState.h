#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "core/app/Press.h"
#include "core/gestures/GestureState.h"

namespace tactora {

// What the controller has seen and decided so far, as the status display and the tests read
// it. Main thread only.
struct ControllerState {
    GestureState gesture;
    // When the last contact frame and the last physical click arrived.
    double lastFrame = 0;
    double lastClick = 0;
    // The live line's last gesture and last action.
    std::string lastGesture = "—";
    std::string lastAction = "—";
    // Whether the sensor started at the last reconnect.
    bool ready = false;
    // The rewritten presses still held, by button number.
    std::map<std::int64_t, Press> presses;
    // The sender of the last mouse event the tap saw, and whether it was the Magic Mouse.
    std::uint64_t lastSender = 0;
    bool senderIsMouse = false;
    // Whether a shortcut is being recorded.
    bool recording = false;
    // Bumped whenever pending actions are cancelled: a scheduled action carrying an older
    // generation does nothing.
    std::int64_t actionGeneration = 0;
};

}  // namespace tactora
