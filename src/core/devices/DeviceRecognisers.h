#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "core/gestures/Finger.h"
#include "core/gestures/GestureState.h"

namespace tactora {

// One tap recogniser per touch device, so that the frames of two devices never mix: a finger
// on a trackpad never joins a tap on the mouse, and a click on one device counts the fingers
// resting on that device only. Devices are told apart by the id the sensor gives their frames.
// Main thread only.
class DeviceRecognisers {
  public:
    // The touch of one device: its recogniser and when its last frame came.
    struct Touch {
        std::uint64_t device = 0;
        GestureState gesture;
        double lastFrame = 0;  // seconds of uptime; 0 until a frame came
        double lastClick = 0;  // when its button last went down; 0 until it did
    };

    // Feeds a frame of `device`, stamped `now`, to that device's recogniser (made in its
    // initial state when the device first sends). The tap's finger count when the frame ends
    // one, as GestureState::update says.
    std::optional<std::int64_t> update(std::uint64_t device, std::span<const Finger> fingers,
                                       double now);

    // The touch of `device`, or nothing when it has sent no frame since it was last forgotten.
    const Touch* find(std::uint64_t device) const;

    // The device's physical button went down at `now`: only its own touch sequence counts it.
    void physicalClick(std::uint64_t device, double now);
    // The device scrolled: its current touch can no longer be a tap.
    void scrolled(std::uint64_t device);

    // Every recogniser back to its initial state, and no frame seen (pause, wake, profile
    // change, reconnect).
    void resetAll();
    // The device left: its touch is dropped.
    void forget(std::uint64_t device);
    // Drops the touch of every device that `kept` does not keep.
    void forgetAllBut(const std::function<bool(std::uint64_t)>& kept);

    std::size_t deviceCount() const { return touches_.size(); }

  private:
    Touch* touchOf(std::uint64_t device);
    Touch& touchFor(std::uint64_t device);

    std::vector<Touch> touches_;
    // Frames come in runs from one device; the last one found is looked at first, so the
    // frames of one device cost the same however many others there are.
    std::size_t recent_ = 0;
};

}  // namespace tactora
