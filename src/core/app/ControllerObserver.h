#pragma once

#include <span>

#include "core/app/ControllerEvents.h"
#include "core/gestures/Finger.h"

namespace tactora {

// Told what the controller received and decided. An observer overrides only what it needs;
// every call comes on the main thread, after the decision it tells of. What the event tap
// decided is told from the main queue once the tap's callback has returned, so an observer can
// never delay the tap's answer; everything else is told from inside the controller's own
// operation. An observer must not add or remove observers from inside a call, and is in one
// observer list at a time.
class ControllerObserver {
  public:
    virtual ~ControllerObserver() = default;

    // A contact frame arrived from the sensor, before anything was left out of it.
    virtual void frameReceived(const FrameNote& /*note*/) {}
    // A touch became a gesture: a tap, or a click with fingers resting.
    virtual void gestureRecognised(const GestureNote& /*note*/) {}
    // A touch ended without a gesture, or its gesture could not run.
    virtual void touchDropped(const TouchDropNote& /*note*/) {}
    // An action was carried out.
    virtual void actionPerformed(const ActionNote& /*note*/) {}
    // A scheduled action's guard refused it.
    virtual void actionDropped(const ActionDropNote& /*note*/) {}

    // Whether mouseEventDecided() is wanted now. Read on every event of the tap, so it is a flag
    // the observer sets rather than a question asked: while no observer wants them, the tap's
    // pass path does no work for observers.
    bool wantsMouseEvents() const { return wantsMouseEvents_; }
    virtual void mouseEventDecided(const MouseEventNote& /*note*/) {}

    // Held presses were let go of because something changed.
    virtual void pressesReleased(const PressesReleasedNote& /*note*/) {}
    // The user ticked or unticked the switch, or chose Pause; told before it is applied.
    virtual void switchChosen(const SwitchNote& /*note*/) {}
    // Gestures were switched on or off.
    virtual void switchChanged(const SwitchNote& /*note*/) {}
    // The user selected a profile, or one was made active for them.
    virtual void profileSelected(const ProfileNote& /*note*/) {}
    // Another application came to the front.
    virtual void frontApplicationChanged(const FrontApplicationNote& /*note*/) {}
    // This application became active, or stopped being it.
    virtual void activeChanged(const ActiveNote& /*note*/) {}

    // Launching finished: the window, its views and the status item exist.
    virtual void launched(double /*time*/) {}
    // The settings window is about to be shown.
    virtual void windowShown(const MomentNote& /*note*/) {}
    // The system woke from sleep; told before the program pauses and reconnects.
    virtual void woke(const MomentNote& /*note*/) {}
    // The sensor was started again (at launch, on Reconnect, after a wake).
    virtual void reconnected(const ReconnectNote& /*note*/) {}
    // The refresh read the permissions; told before the permission line is written, so that
    // what an observer adds to it through the status display shows at once.
    virtual void permissionsPolled(const PermissionsNote& /*note*/) {}
    // The status display was brought up to date (every refreshInterval, and after changes).
    virtual void refreshed(double /*time*/) {}
    // The application is about to quit; told before gestures stop.
    virtual void terminating(double /*time*/) {}

    // Not copied: a copy would not be in the list the original is in.
    ControllerObserver(const ControllerObserver&) = delete;
    ControllerObserver(ControllerObserver&&) = delete;
    ControllerObserver& operator=(const ControllerObserver&) = delete;
    ControllerObserver& operator=(ControllerObserver&&) = delete;

  protected:
    ControllerObserver() = default;

    // Says whether mouseEventDecided() is wanted from now on.
    void setWantsMouseEvents(bool wanted) {
        if (wanted == wantsMouseEvents_) {
            return;
        }
        wantsMouseEvents_ = wanted;
        if (wanters_ != nullptr) {
            *wanters_ += wanted ? 1 : -1;
        }
    }

  private:
    friend class ObserverList;

    bool wantsMouseEvents_ = false;
    // The count of observers wanting mouse events that the list this one is in keeps, so that
    // the tap reads one number instead of asking every observer.
    int* wanters_ = nullptr;
};

}  // namespace tactora
