#pragma once

#include <optional>
#include <span>

#include "core/app/ControllerEvents.h"
#include "core/gestures/Finger.h"
#include "core/gestures/TapThresholds.h"
#include "core/platform/ContactShape.h"

namespace tactora {

// What the recogniser is to be given for one frame.
struct JudgedFrame {
    // First end the touch sequence in progress, as if everything had lifted: a contact in it
    // has just been judged one to leave out, so what was seen of the touch so far is no
    // gesture. Whatever that end yields is dropped for `restartReason`.
    bool restart = false;
    DropReason restartReason = DropReason::largeContact;
    // Then hand over `fingers`, unless there is nothing to tell: every contact was left out and
    // the recogniser already knows that nothing touches.
    bool deliver = true;
    std::span<const Finger> fingers;
};

// A part with a say in what touches become, beside the recogniser: it sees every contact frame
// before the recogniser does and every scroll and button of the mouse, may leave contacts out,
// drop a tap or keep a click ordinary, and sets the limits by which a touch is a tap. Without
// one, the recogniser alone decides, with its own limits.
//
// Main thread only. scroll() and button() are called from the event tap's callback: they decide
// at once and allocate nothing.
class TouchJudge {
  public:
    virtual ~TouchJudge() = default;

    // The limits a touch sequence starting now is judged by.
    virtual TapThresholds thresholds() const = 0;

    // One frame of the sensor: its contacts and, when the sensor reports them, their shapes
    // (empty, or one per contact). The span handed back is valid until the next call.
    virtual JudgedFrame frame(std::span<const Finger> fingers,
                              std::span<const std::optional<ContactShape>> shapes, double now) = 0;

    // A scroll event of the mouse. Whether it marks the touch in progress as moved.
    virtual bool scroll(double now) = 0;
    // The mouse's button went down or up.
    virtual void button(bool down, double now) = 0;

    // Whether the tap that the last frame completed is to be dropped, and why.
    virtual std::optional<DropReason> judgeTap() const = 0;
    // Whether a click going down now is to stay an ordinary click, and why.
    virtual std::optional<DropReason> judgeClick() const = 0;
    // Why the tap of a touch that began at `began` and was recognised at `recognisedAt` is not
    // to act now that its action comes due, `wait` seconds later, the last click having come at
    // `click`; nothing when it acts.
    virtual std::optional<DropReason> vetoAtDue(double click, double began, double recognisedAt,
                                                double wait) const = 0;

    // Forgets every contact and touch, as when the recogniser is reset.
    virtual void reset() = 0;

  protected:
    TouchJudge() = default;
    TouchJudge(const TouchJudge&) = default;
    TouchJudge& operator=(const TouchJudge&) = default;
    TouchJudge(TouchJudge&&) = default;
    TouchJudge& operator=(TouchJudge&&) = default;
};

}  // namespace tactora
