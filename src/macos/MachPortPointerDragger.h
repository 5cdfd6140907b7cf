#pragma once

#include <CoreGraphics/CoreGraphics.h>

#include <optional>

#include "core/platform/MouseButton.h"
#include "core/platform/PointerDragger.h"
#include "macos/MachPortEventTap.h"

namespace tactora::macos {

// Turns the pointer's moves into drags with an event tap of its own that sees mouse moves only:
// made the first time a button is held, and enabled only while one is, so that no move waits on
// it otherwise. Main thread only; the tap's callback runs on the main run loop too.
class MachPortPointerDragger final : public PointerDragger {
  public:
    MachPortPointerDragger() = default;

    // The tap's callback keeps a pointer to this object.
    MachPortPointerDragger(const MachPortPointerDragger&) = delete;
    MachPortPointerDragger& operator=(const MachPortPointerDragger&) = delete;

    void setDragging(std::optional<MouseButton> button) override;

  private:
    static CGEventRef _Nullable retype(CGEventTapProxy _Nullable proxy, CGEventType type,
                                       CGEventRef _Nonnull event, void* _Nullable dragger);

    std::optional<MouseButton> button_;
    MachPortEventTap tap_{&MachPortPointerDragger::retype, this};
};

}  // namespace tactora::macos
