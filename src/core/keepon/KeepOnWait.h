#pragma once

namespace tactora {

// What keeping gestures on waits for before it switches them back on.
enum class KeepOnWait {
    nothing,          // not waiting: gestures are on, or the user wants them off
    sensor,           // the mouse is not connected; tried again at each reconnect
    accessibility,    // tried again when a permission changes
    inputMonitoring,  // tried again when a permission changes
    eventTap,         // the system refused the tap; tried again when a permission changes
    coolDown,         // the system disabled the tap; re-enabled when the cool-down ends
    stopped,          // the tap was disabled too often; only the user's tick starts again
};

}  // namespace tactora
