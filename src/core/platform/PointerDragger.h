#pragma once

#include <optional>

#include "core/platform/MouseButton.h"

namespace tactora {

// Turns the pointer's moves into drags of a button while one is held by the program, so that
// moving the mouse while a synthetic press is down drags with it. The shell does it with a
// second event tap, for mouse moves only, created on first use and enabled only while dragging:
// each move becomes `button`'s drag (its type and button number), marked as every synthetic
// event is. Main thread only.
class PointerDragger {
  public:
    virtual ~PointerDragger() = default;

    // From now on moves become drags of `button`; nothing: moves pass as they are.
    virtual void setDragging(std::optional<MouseButton> button) = 0;

  protected:
    PointerDragger() = default;
    PointerDragger(const PointerDragger&) = default;
    PointerDragger& operator=(const PointerDragger&) = default;
    PointerDragger(PointerDragger&&) = default;
    PointerDragger& operator=(PointerDragger&&) = default;
};

}  // namespace tactora
