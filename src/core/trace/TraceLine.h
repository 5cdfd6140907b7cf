#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/gestures/Finger.h"
#include "core/platform/ContactFrame.h"
#include "core/platform/EventTypes.h"

namespace tactora {

// One contact frame as the controller received it; empty when the last finger lifted.
struct TraceFrame {
    // As many contacts as the live path passes on from one frame of the surface.
    static constexpr std::size_t mostContacts = ContactFrame::capacity;

    std::vector<Finger> fingers;

    bool operator==(const TraceFrame&) const = default;
};

// A mouse event that reached the event tap: a button's down, drag or up, or a scroll.
struct TraceMouseEvent {
    EventType type = event::leftMouseDown;
    std::int64_t button = 0;
    bool fromMouse = true;  // the sender was the touch mouse, not another pointing device

    bool operator==(const TraceMouseEvent&) const = default;
};

// The user selected the work profile with this id (the canonical UUID text).
struct TraceProfileSelected {
    std::string id;

    bool operator==(const TraceProfileSelected&) const = default;
};

// Another application came to the front; nothing when no application is frontmost.
struct TraceFrontApplication {
    std::optional<std::int32_t> processID;
    std::string bundleID;  // empty when unknown

    bool operator==(const TraceFrontApplication&) const = default;
};

// Gestures were switched on or off.
struct TraceGestures {
    bool on = false;

    bool operator==(const TraceGestures&) const = default;
};

// This application became the active one, or stopped being it.
struct TraceActive {
    bool active = false;

    bool operator==(const TraceActive&) const = default;
};

using TraceEvent = std::variant<TraceFrame, TraceMouseEvent, TraceProfileSelected,
                                TraceFrontApplication, TraceGestures, TraceActive>;

// One line of a trace: when (seconds of system uptime) and what.
struct TraceLine {
    double time = 0;
    TraceEvent event;

    bool operator==(const TraceLine&) const = default;
};

}  // namespace tactora
