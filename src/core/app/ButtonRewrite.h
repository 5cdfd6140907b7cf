#pragma once

#include "core/platform/MouseButton.h"
#include "core/platform/TapEvent.h"

namespace tactora {

// Turns the tapped `event` in place into `button`'s drag, down or up event (drag wins over
// down). Any thread; allocates nothing, so the event tap's callback may call it.
void rewriteButton(TapEvent& event, MouseButton button, bool down, bool drag);

}  // namespace tactora
