#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "core/gestures/Finger.h"
#include "core/platform/ContactFrame.h"
#include "core/platform/ContactShape.h"
#include "core/platform/EventTypes.h"

namespace tactora {

// One contact frame as the controller received it; empty when the last finger lifted.
struct TraceFrame {
    // As many contacts as the live path passes on from one frame of the surface.
    static constexpr std::size_t mostContacts = ContactFrame::capacity;

    TraceFrame() = default;
    explicit TraceFrame(std::vector<Finger> contacts,
                        std::vector<std::optional<ContactShape>> contactShapes = {},
                        std::optional<std::uint64_t> fromDevice = std::nullopt)
        : fingers(std::move(contacts)), shapes(std::move(contactShapes)), device(fromDevice) {}

    std::vector<Finger> fingers;
    // Empty when the trace carries no shapes; otherwise one entry per finger, in finger order,
    // each empty when that contact's shape was not recorded.
    std::vector<std::optional<ContactShape>> shapes;
    // The touch device the frame came from, as a `device` line declared it; nothing for the
    // Magic Mouse of a trace that names no devices.
    std::optional<std::uint64_t> device;

    bool operator==(const TraceFrame&) const = default;
};

// A mouse event that reached the event tap: a button's down, drag or up, or a scroll.
struct TraceMouseEvent {
    TraceMouseEvent() = default;
    TraceMouseEvent(EventType eventType, std::int64_t buttonNumber, bool fromTouchDevice,
                    std::optional<std::uint64_t> fromDevice = std::nullopt)
        : type(eventType), button(buttonNumber), fromMouse(fromTouchDevice), device(fromDevice) {}

    EventType type = event::leftMouseDown;
    std::int64_t button = 0;
    bool fromMouse = true;  // the sender was a touch device in use, not another pointing device
    // Which touch device sent it, as a `device` line declared it; nothing for the Magic Mouse
    // of a trace that names no devices, and for other pointing devices.
    std::optional<std::uint64_t> device;

    bool operator==(const TraceMouseEvent&) const = default;
};

// The kinds of touch device a trace names.
enum class TraceDeviceKind { magicMouse, magicTrackpad, builtInTrackpad, other };

// A touch device that later lines refer to by `id`. Declaring an id again replaces its kind
// and name from that line on.
struct TraceDevice {
    std::uint64_t id = 0;
    TraceDeviceKind kind = TraceDeviceKind::magicMouse;
    std::string name;  // for people; may hold spaces, never a line break

    bool operator==(const TraceDevice&) const = default;
};

// The user chose whether gestures use a touch device beside the Magic Mouse, named by a device
// line; from this line on its frames and events count for gestures only while it is used.
struct TraceDeviceUse {
    std::uint64_t device = 0;
    bool on = true;

    bool operator==(const TraceDeviceUse&) const = default;
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

using TraceEvent =
    std::variant<TraceFrame, TraceMouseEvent, TraceProfileSelected, TraceFrontApplication,
                 TraceGestures, TraceActive, TraceDevice, TraceDeviceUse>;

// One line of a trace: when (seconds of system uptime) and what.
struct TraceLine {
    double time = 0;
    TraceEvent event;

    bool operator==(const TraceLine&) const = default;
};

}  // namespace tactora
