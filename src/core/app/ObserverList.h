#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <variant>
#include <vector>

#include "core/app/ControllerEvents.h"
#include "core/app/ControllerObserver.h"
#include "core/gestures/Finger.h"

namespace tactora {

// The controller's observers (not owned) and the telling of them. Main thread only.
//
// While a Deferral is alive (the event tap's callback), what is told is kept in fixed storage
// instead, until the owner calls tellKept() from a main-queue task of its own once the tap has
// its answer. Keeping allocates nothing.
class ObserverList {
  public:
    // Notes kept during deferral beyond this many are not told.
    static constexpr std::size_t deferredCapacity = 64;

    ObserverList() = default;
    ObserverList(const ObserverList&) = delete;
    ObserverList& operator=(const ObserverList&) = delete;
    ObserverList(ObserverList&&) = delete;
    ObserverList& operator=(ObserverList&&) = delete;
    ~ObserverList();

    // `observer` must stay alive until it is removed or the list is gone. Adding one twice
    // tells it twice (and removing it once leaves it listed once); removing one that is not
    // listed does nothing.
    void add(ControllerObserver& observer);
    void remove(ControllerObserver& observer);

    // Keeps notes for later while alive; see above.
    class Deferral {
      public:
        explicit Deferral(ObserverList& list) : list_(list) { ++list_.deferring_; }
        Deferral(const Deferral&) = delete;
        Deferral& operator=(const Deferral&) = delete;
        Deferral(Deferral&&) = delete;
        Deferral& operator=(Deferral&&) = delete;
        ~Deferral() { --list_.deferring_; }

      private:
        ObserverList& list_;
    };

    // A slot, kept for later, for the mouse event being decided; the caller fills it in before
    // its deferral ends. Null when no observer wants mouse events (or the storage is full).
    MouseEventNote* deferMouseEvent() {
        return mouseEventWanters_ == 0 || deferring_ == 0 ? nullptr : keepMouseEvent();
    }
    // Whether notes are kept for tellKept().
    bool hasKept() const { return keptCount_ > 0; }
    // Tells what was kept, in the order kept; what an observer causes meanwhile is told at once,
    // after them.
    void tellKept();

    void frameReceived(const FrameNote& note);
    void gestureRecognised(const GestureNote& note);
    void touchDropped(const TouchDropNote& note);
    void actionPerformed(const ActionNote& note);
    void actionDropped(const ActionDropNote& note);
    void pressesReleased(const PressesReleasedNote& note);
    void switchChanged(const SwitchNote& note);
    void profileSelected(const ProfileNote& note);
    void activeChanged(const ActiveNote& note);
    // Never told from the tap's callback, so never kept.
    void switchChosen(const SwitchNote& note);
    void frontApplicationChanged(const FrontApplicationNote& note);
    void launched(double time);
    void windowShown(const MomentNote& note);
    void woke(const MomentNote& note);
    void reconnected(const ReconnectNote& note);
    void permissionsPolled(const PermissionsNote& note);
    void refreshed(double time);
    void terminating(double time);

  private:
    using Note =
        std::variant<GestureNote, TouchDropNote, ActionNote, ActionDropNote, MouseEventNote,
                     PressesReleasedNote, SwitchNote, ProfileNote, ActiveNote>;

    // Tells every observer at once, through `call`.
    template <class... Parameters, class... Arguments>
    void each(void (ControllerObserver::*call)(Parameters...), const Arguments&... arguments) {
        for (ControllerObserver* observer : observers_) {
            (observer->*call)(arguments...);
        }
    }
    void tell(const Note& note);
    // Keeps `note` when deferring and returns true; false when it is to be told now.
    bool keep(const Note& note);
    Note* nextSlot();
    MouseEventNote* keepMouseEvent();

    std::vector<ControllerObserver*> observers_;
    int deferring_ = 0;
    std::array<Note, deferredCapacity> kept_;
    std::size_t keptCount_ = 0;
    // How many listed observers want mouse events now; the observers keep it up to date.
    int mouseEventWanters_ = 0;
};

}  // namespace tactora
