#pragma once

#include <functional>

#include "core/platform/SurfaceSnapshot.h"

namespace tactora {

// The settings window's live view of the touch surface. It exists once AppShell::buildWindow()
// has run. Main thread only.
class SurfaceView {
  public:
    virtual ~SurfaceView() = default;

    // Calls `handler` with true when the settings window becomes visible on screen and with
    // false when it stops being visible (closed, minimised, hidden or fully covered). Called
    // once, after the window is built; the window starts out not visible.
    virtual void observeVisibility(std::function<void(bool visible)> handler) = 0;

    // Draws `snapshot` in place of what was shown before.
    virtual void show(const SurfaceSnapshot& snapshot) = 0;
};

}  // namespace tactora
