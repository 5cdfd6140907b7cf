#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/gestures/Finger.h"
#include "core/gestures/GestureState.h"

namespace tactora {

// What a gesture extension asks the controller to carry out after a frame.
struct GestureAct {
    enum class Kind : std::uint8_t {
        perform,     // carry out `action` now, for a gesture of `fingers`
        tapInstead,  // the tap this frame completed carries out `action` instead of its slot's
    };
    Kind kind = Kind::perform;
    ActionIndex action = action::defaultAction;
    std::optional<SavedShortcut> shortcut;
    std::string value;  // what a further action opens or runs; empty for every other action
    std::int64_t fingers = 0;
};

// Gestures beyond the tap recogniser's, recognised from the frames it is fed and beside the
// event tap's decisions. The controller asks it at its decision points; without one, touches
// make only the recogniser's gestures.
//
// Main thread only. swallowsScroll() and physicalClick() are called from the event tap's
// callback: they decide at once and allocate nothing.
class GestureExtension {
  public:
    virtual ~GestureExtension() = default;

    // Whether frame() is wanted: some gesture of it is mapped, or one is under way. Read on every
    // frame, so it answers at once.
    virtual bool listening() const = 0;
    // The recogniser was just fed `fingers` at `now` and holds `gesture`; `tap` is the tap that
    // frame completed. `mayAct`: gestures may run now (the switch is on, nothing is being
    // configured); while they may not, nothing is begun.
    virtual std::optional<GestureAct> frame(std::span<const Finger> fingers, double now,
                                            const GestureState& gesture,
                                            std::optional<std::int64_t> tap, bool mayAct) = 0;

    // Whether a scroll event of the mouse is to be swallowed now.
    virtual bool swallowsScroll() const = 0;
    // The mouse's button went down.
    virtual void physicalClick() = 0;
    // The recogniser was reset (a pause, a wake, a profile change): whatever is under way ends.
    virtual void reset() = 0;

  protected:
    GestureExtension() = default;
    GestureExtension(const GestureExtension&) = default;
    GestureExtension& operator=(const GestureExtension&) = default;
    GestureExtension(GestureExtension&&) = default;
    GestureExtension& operator=(GestureExtension&&) = default;
};

}  // namespace tactora
