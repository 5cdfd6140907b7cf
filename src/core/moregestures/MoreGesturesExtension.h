#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/app/ControllerObserver.h"
#include "core/app/GestureExtension.h"
#include "core/app/ProfileSwitcher.h"
#include "core/moregestures/MoreGestureWatcher.h"
#include "core/moregestures/MoreGestures.h"
#include "core/platform/EventPoster.h"
#include "core/platform/MouseButton.h"
#include "core/platform/PointerDragger.h"

namespace tactora {

// What the gestures beyond the eight reach.
struct MoreGestureServices {
    EventPoster& poster;      // a held button's down and up
    PointerDragger& dragger;  // the pointer's moves as that button's drags
};

// The gestures beyond the eight as a part of the program: the controller's gesture extension,
// fed the frames the tap recogniser is fed, and one of its observers, to follow the active
// profile's mapping and to let go of a held button whenever gestures stop. A region tap makes
// the one-finger tap carry out its region's action (with the tap's wait and veto); a tip tap or
// a swipe carries out its action at once, through the controller; tap and hold presses the
// mapped button itself, turns the pointer's moves into its drags, and releases it exactly once,
// and carries out any other action (a further action among them) once, as it begins. Further
// actions go to the controller with their values.
// Main thread only.
class MoreGesturesExtension final : public GestureExtension, public ControllerObserver {
  public:
    explicit MoreGesturesExtension(MoreGestureServices services);

    // Follows the active profile of `profiles` (not owned; it must outlive this) from launch
    // on; until then nothing is recognised. The controller is made with its extension, so it
    // is followed once it exists.
    void follow(ProfileSwitcher& profiles);
    // Tells `watcher` (not owned; nullptr for none) what the gestures do from now on.
    void watch(MoreGestureWatcher* watcher) { watcher_ = watcher; }

    bool listening() const override { return recognisers_.settings().any(); }
    std::optional<GestureAct> frame(std::span<const Finger> fingers, double now,
                                    const GestureState& gesture, std::optional<std::int64_t> tap,
                                    bool mayAct) override;
    bool swallowsScroll() const override { return recognisers_.swallowsScroll(); }
    void physicalClick() override;
    void reset() override;

    void launched(double time) override;
    void profileSelected(const ProfileNote& note) override;
    // Picks up a mapping changed in the settings, between touches.
    void refreshed(double time) override;
    void switchChanged(const SwitchNote& note) override;
    void woke(const MomentNote& note) override;
    void terminating(double time) override;

    // The button held by a tap and hold now, if any.
    std::optional<MouseButton> heldButton() const { return held_; }

  private:
    // Presses or releases the held button for a hold's start or end; what the controller is
    // to carry out for any other gesture.
    std::optional<GestureAct> carryOut(std::optional<MoreGestureEvent> event);
    void press(MouseButton button);
    void release();
    void configure();

    // The active profile's mapping, or nothing before launch or while no profile is followed.
    const MoreGestureMap* mapping();

    MoreGestureServices services_;
    ProfileSwitcher* profiles_ = nullptr;
    MoreGestureWatcher* watcher_ = nullptr;
    bool launched_ = false;
    MoreGestures recognisers_;
    std::optional<MouseButton> held_;
};

}  // namespace tactora
