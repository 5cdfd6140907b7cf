#pragma once

#include "core/platform/LaunchOrigin.h"

namespace tactora {

// How the application shows itself after it was started. Started by the user it opens its
// settings window and has a Dock icon, as always. Started by its login item it starts quietly in
// the menu bar: no window, and no Dock icon until the user opens the window, which then keeps
// it for the rest of the run. Main thread only.
class LaunchPresence {
  public:
    explicit LaunchPresence(LaunchOrigin origin) : quiet_(origin == LaunchOrigin::loginItem) {}

    // Whether launching opens the settings window.
    bool showsWindowAtLaunch() const { return !quiet_; }
    // Whether the application is a regular one, with a Dock icon and the main menu; otherwise
    // it is an accessory one, with the status item only.
    bool showsDockIcon() const { return !quiet_; }
    // The user opens the settings window. True exactly once after a quiet start: the Dock icon
    // must appear now.
    bool windowOpened();

  private:
    bool quiet_;
};

}  // namespace tactora
