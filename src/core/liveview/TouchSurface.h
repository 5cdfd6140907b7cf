#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "core/app/ControllerEvents.h"
#include "core/app/GestureKind.h"
#include "core/gestures/Finger.h"
#include "core/platform/SurfaceContact.h"
#include "core/platform/SurfaceSnapshot.h"

namespace tactora {

// What the live view of the touch surface shows, decided from the frames, gestures and
// actions it is told about and the time it is asked at. Texts are built only when a snapshot
// is asked for and only when they change, so a steady stream of frames with the same number of
// fingers allocates nothing. Main thread only.
//
// Orientation: the sensor's normalised x grows from the left edge of the surface to the right
// one, and its y from the back of the mouse (the palm's end) to the front (the fingertips'
// end). The view shows the mouse from above with its front at the top, as the hand on it sees
// it, so a contact's `left` is x and its `top` is 1 - y.
class TouchSurface {
  public:
    // A gesture stays highlighted this long after it, or its action, came.
    static constexpr double highlightDuration = 1.0;
    // Contacts are shown only while the last frame is younger than this, as on the live line.
    static constexpr double contactLifetime = 0.5;
    // Why a touch came to nothing is shown this long after it did.
    static constexpr double reasonDuration = 1.5;

    // The contacts of the latest frame, received at `at`.
    void frame(std::span<const Finger> fingers, double at);
    // A gesture recognised at `at`; it replaces the last one and its action.
    void gesture(GestureKind kind, std::int64_t fingers, double at);
    // The last gesture's action, called `name`, was performed at `at`. Ignored before any
    // gesture.
    void action(const std::string& name, double at);

    // A touch, or the action it stood for, came to nothing at `at` for `reason`; it replaces
    // any reason shown before.
    void rejected(DropReason reason, double at);

    // When the last gesture's highlight ends; nothing before any gesture.
    std::optional<double> highlightEnd() const;
    // When the last reason stops being shown; nothing before any.
    std::optional<double> reasonEnd() const;

    // What to show at `now`. The reference stays valid until the next call. A gesture, and its
    // action, is announced in the first snapshot asked for while it is highlighted and in no
    // other: one seen only after its highlight has ended is never announced.
    const SurfaceSnapshot& snapshot(double now);

    // The view's position of a contact at the sensor's (x, y); positions outside the surface
    // are brought to its edge, and a position that is not a number gives nothing.
    static std::optional<SurfaceContact> place(double x, double y);

  private:
    struct Gesture {
        GestureKind kind = GestureKind::tap;
        std::int64_t fingers = 0;
        std::optional<std::string> action;
        double until = 0;
    };

    void updateTexts();
    void updateReason(double now);
    void updateAnnouncement();

    std::array<SurfaceContact, SurfaceSnapshot::capacity> contacts_{};
    std::size_t contactCount_ = 0;
    std::int64_t fingers_ = 0;
    std::optional<double> frameAt_;
    std::optional<Gesture> last_;
    // Bumped whenever the last gesture or its action changes, so its texts are rebuilt once.
    std::uint64_t gestureRevision_ = 0;
    // Whether the last gesture, and its action, have yet to be announced.
    bool gestureUnannounced_ = false;
    bool actionUnannounced_ = false;
    // The last reason a touch came to nothing, and until when it is shown.
    std::optional<DropReason> reason_;
    double reasonUntil_ = 0;
    bool reasonUnannounced_ = false;
    std::optional<DropReason> shownReason_;

    SurfaceSnapshot snapshot_;
    std::optional<std::int64_t> shownFingers_;
    std::uint64_t shownRevision_ = 0;
};

}  // namespace tactora
