#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/app/ControllerEvents.h"
#include "core/app/GestureKind.h"

namespace tactora {

// What became of one touch: the gesture it became, if it became one, and why it, or the action
// it stood for, came to nothing, if it did.
struct TouchOutcome {
    // The same for a gesture and for what later became of its action, so that a list of
    // outcomes can put the later word in place of the earlier one.
    std::uint64_t id = 0;
    std::optional<GestureKind> gesture;
    std::int64_t fingers = 0;
    std::optional<DropReason> reason;
    double time = 0;

    // A gesture whose action was not refused.
    bool accepted() const { return gesture.has_value() && !reason.has_value(); }

    bool operator==(const TouchOutcome&) const = default;
};

// Turns the controller's notes into one outcome per touch, for those who show the user what
// each touch became. A gesture is an outcome at once; when its action is then refused (the
// switch, the application in front, a click just after it, gestures off while this program is
// the active one), the same outcome comes again with the reason. The end of a touch in which a
// click was already told of adds nothing: the click was what the touch became.
//
// Main thread only. Allocates nothing after it is made.
class TouchOutcomes {
  public:
    TouchOutcomes();

    // A contact frame: whether anything touches the surface.
    void frame(bool touching);
    std::optional<TouchOutcome> gesture(const GestureNote& note);
    std::optional<TouchOutcome> dropped(const TouchDropNote& note);
    std::optional<TouchOutcome> actionDropped(const ActionDropNote& note);
    void actionPerformed(const ActionNote& note);

  private:
    // A gesture whose action has yet to be performed or refused.
    struct Pending {
        TouchOutcome outcome;
        ActionIndex action = action::defaultAction;
    };
    // At most this many gestures wait for their action at once; the oldest is forgotten first.
    static constexpr std::size_t pendingCapacity = 4;

    std::optional<TouchOutcome> resolve(std::size_t index, DropReason reason, double time);

    std::vector<Pending> pending_;
    std::uint64_t nextID_ = 1;
    bool touching_ = false;
    std::uint64_t touch_ = 0;                    // counts the touches that began
    std::optional<std::uint64_t> clickedTouch_;  // the touch in which a click was told of
};

}  // namespace tactora
