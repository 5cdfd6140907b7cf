#pragma once

#include "core/app/Press.h"
#include "core/platform/EventTypes.h"
#include "core/platform/MouseButton.h"
#include "core/platform/TapEvent.h"

namespace tactora {

// Turns the tapped `event` in place into `button`'s drag, down or up event (drag wins over
// down). Any thread; allocates nothing, so the event tap's callback may call it.
void rewriteButton(TapEvent& event, MouseButton button, bool down, bool drag);

// Turns `event` into the held press's button, with the modifier flags of a modifier click on
// every one of its events, so that a ⌘-drag stays a ⌘-drag to its up. `press` must have a
// button. Allocates nothing.
void rewritePress(TapEvent& event, const Press& press, bool down, bool drag);

// The left or right button's down, up and drag events: the physical presses a touch surface
// makes, which held presses follow.
bool isPhysicalDown(EventType type);
bool isPhysicalUp(EventType type);
bool isPhysicalDrag(EventType type);

}  // namespace tactora
