#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/app/GestureKind.h"
#include "core/gestures/Finger.h"
#include "core/platform/ContactShape.h"
#include "core/platform/EventTypes.h"
#include "core/platform/MouseButton.h"

namespace tactora {

// What the controller tells its observers, as plain values. Every time is seconds of system
// uptime, the controller's own clock.

// Why a touch, or the action it stood for, came to nothing.
enum class DropReason : std::uint8_t {
    tooLong,             // the fingers rested longer than a tap lasts
    tooShort,            // shorter than a tap: noise
    moved,               // a finger moved beyond the tolerance
    tooManyFingers,      // more than four fingers at some moment
    clickDuring,         // the mouse's button went down during the touch
    clickAfter,          // a click just after the touch vetoed its action
    profileChanged,      // another profile became active before the action came due
    applicationChanged,  // another application came to the front before it came due
    switchChanged,       // gestures were switched off, or something else cancelled pending work
    gesturesOff,         // gestures were off (or being configured) when the touch ended
    // Left out by the options against accidents, each off unless the user switches it on:
    largeContact,    // a contact as large as a palm or a thumb was part of the touch
    edgeBand,        // the contact landed in a band along the surface's edge
    restingContact,  // a contact rested since before the gesture began
    afterActivity,   // the touch began just after a scroll or a click
    duringPress,     // the touch began while the button was held: part of the click
    drumming,        // fingers drumming: landing one after another, or in a quick run
};

// A contact frame as the sensor delivered it (empty when the last finger lifted). The spans
// live only for the call.
struct FrameNote {
    std::span<const Finger> fingers;
    std::span<const std::optional<ContactShape>> shapes;  // empty, or one per finger
    double time = 0;
};

// The last finger lifted and the touch was a tap, or the button went down with fingers resting.
struct GestureNote {
    GestureKind kind = GestureKind::tap;
    std::int64_t fingers = 0;
    ActionIndex action = action::defaultAction;  // what the gesture's slot maps to
    double time = 0;
};

// A touch sequence ended without a gesture, or its gesture could not run.
struct TouchDropNote {
    DropReason reason = DropReason::tooLong;
    std::int64_t fingers = 0;  // the sequence's largest finger count
    double time = 0;
};

// Where a performed action came from.
enum class ActionOrigin : std::uint8_t {
    tap,
    click,
    direct,       // asked for by name (the settings window's test button, for one)
    moreGesture,  // a gesture beyond the taps and clicks: a tip tap, a swipe, a tap and hold
};

// An action was carried out (action 0, the system's own behaviour, included).
struct ActionNote {
    ActionIndex action = action::defaultAction;
    std::optional<SavedShortcut> shortcut;  // the custom action's, when it has one
    ActionOrigin origin = ActionOrigin::direct;
    std::int64_t fingers = 0;  // of the gesture it stood for; 0 when direct
    // The button a physical press was turned into to carry the action out, if it was.
    std::optional<MouseButton> asButton;
    double time = 0;
};

// A scheduled action was not carried out.
struct ActionDropNote {
    ActionIndex action = action::defaultAction;
    DropReason reason = DropReason::switchChanged;
    double time = 0;
};

// What the event tap did with a mouse event.
enum class MouseEventFate : std::uint8_t {
    passed,     // on, unchanged
    rewritten,  // on, turned into `rewrittenTo`'s event
    swallowed,  // never reached the system
};

// One mouse event that the tap decided on (the program's own marked events are not told).
struct MouseEventNote {
    EventType type = event::leftMouseDown;
    std::int64_t button = 0;  // as the event numbered it
    bool fromMouse = false;   // the sender was the touch mouse
    MouseEventFate fate = MouseEventFate::passed;
    MouseButton rewrittenTo = MouseButton::left;  // meaningful when rewritten
    double time = 0;
    // The device service that sent it (the event's sender id), so that the device beside the
    // Magic Mouse it came from can be told.
    std::uint64_t sender = 0;
};

// Held presses were let go of by a change of state: the buttons whose up was posted.
struct PressesReleasedNote {
    static constexpr std::size_t capacity = 8;
    std::array<MouseButton, capacity> buttons{};
    std::size_t count = 0;  // at most capacity are told
    double time = 0;
};

// Gestures were switched on or off, by the user or by the program itself.
struct SwitchNote {
    bool on = false;
    bool byUser = false;
    bool tapDisabled = false;  // the system switched the event tap off
    double time = 0;
};

// What the refresh found the two permissions to be, before it writes the permission line.
struct PermissionsNote {
    bool accessibility = false;
    bool inputMonitoring = false;
    double time = 0;
};

// The sensor was started again; `ready` when it is connected. Gestures are off after it.
struct ReconnectNote {
    bool ready = false;
    double time = 0;
};

// A profile became the active one: the user's choice, or one chosen for them.
struct ProfileNote {
    std::string id;  // the canonical UUID text
    bool chosen = false;
    double time = 0;
};

// Another application came to the front (this one included), or none is in front, as the
// system announced it.
struct FrontApplicationNote {
    std::optional<std::int32_t> processID;  // none when no application is in front
    std::string bundleID;                   // empty when there is none or it has none
    std::string name;                       // what the user calls it; empty for this one
    double time = 0;
};

// This application became the active one, or stopped being it.
struct ActiveNote {
    bool active = false;
    double time = 0;
};

// Something happened at a moment, with nothing more to say about it.
struct MomentNote {
    double time = 0;
};

}  // namespace tactora
