#include "core/app/TouchStep.h"

namespace tactora {

namespace {

// Why the sequence that `state` holds is no tap, were it to end at `time`; nothing when it is.
std::optional<DropReason> whyNoTap(const GestureState& state, double time) {
    if (!state.began) {
        return std::nullopt;
    }
    const double duration = time - *state.began;
    if (state.clicked) {
        return DropReason::clickDuring;
    }
    if (state.invalid || state.peak > GestureState::maxFingers) {
        return DropReason::tooManyFingers;
    }
    if (state.moved) {
        return DropReason::moved;
    }
    if (duration < state.thresholds.shortest) {
        return DropReason::tooShort;
    }
    if (duration > state.thresholds.longest) {
        return DropReason::tooLong;
    }
    return std::nullopt;
}

// Feeds `fingers` to the recogniser: the tap it completes, or why the touch it ends is none.
TouchStep recognise(GestureState& gesture, TouchJudge* judge, std::span<const Finger> fingers,
                    double now) {
    if (judge != nullptr && !gesture.began && !fingers.empty()) {
        gesture.thresholds = judge->thresholds();
    }
    // Only an empty frame ends a sequence; the reason is worked out before the state resets.
    TouchStep step{.dropped = fingers.empty() ? whyNoTap(gesture, now) : std::nullopt,
                   .droppedFingers = gesture.peak,
                   .tap = std::nullopt,
                   .began = gesture.began.value_or(now),
                   .restarted = false,
                   .fed = true,
                   .fingers = fingers};
    step.tap = gesture.update(fingers, now);
    if (!step.tap || judge == nullptr) {
        return step;
    }
    if (const std::optional<DropReason> reason = judge->judgeTap()) {
        step.dropped = reason;
        step.droppedFingers = *step.tap;
        step.tap.reset();
    }
    return step;
}

}  // namespace

TouchStep stepTouch(GestureState& gesture, TouchJudge* judge, std::span<const Finger> fingers,
                    std::span<const std::optional<ContactShape>> shapes, double now) {
    if (judge == nullptr) {
        return recognise(gesture, nullptr, fingers, now);
    }
    const JudgedFrame judged = judge->frame(fingers, shapes, now);
    if (!judged.restart) {
        return judged.deliver ? recognise(gesture, judge, judged.fingers, now) : TouchStep{};
    }
    // What was seen of the touch so far is no gesture; the frame after the restart starts a
    // new one, so it ends nothing.
    TouchStep restarted{.dropped = judged.restartReason,
                        .droppedFingers = gesture.peak,
                        .tap = {},
                        .began = now,
                        .restarted = true,
                        .fed = true,
                        .fingers = {}};
    (void)gesture.update({}, now);
    if (judged.deliver) {
        (void)recognise(gesture, judge, judged.fingers, now);
        restarted.fingers = judged.fingers;
    }
    return restarted;
}

void resetTouch(GestureState& gesture, TouchJudge* judge, GestureExtension* extension) {
    gesture.reset();
    if (judge != nullptr) {
        judge->reset();
    }
    if (extension != nullptr) {
        extension->reset();
    }
}

}  // namespace tactora
