#include <algorithm>
#include <cstddef>

#include "core/app/ApplicationController.h"
#include "core/app/Controller.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"
#include "core/support/Fatal.h"
#include "core/support/ScopedCount.h"

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
    if (duration < GestureState::shortestTap) {
        return DropReason::tooShort;
    }
    if (duration > GestureState::longestTap) {
        return DropReason::tooLong;
    }
    return std::nullopt;
}

}  // namespace

void Controller::reconnect() {
    {
        const ScopedCount program(programActions_);
        pause();
        state_.gesture.reset();
        state_.lastFrame = 0;
        state_.ready = services_.sensor.start(&Controller::frameCallback);
        const std::int64_t error = services_.sensor.statusError();
        sensorText_ = L(services_.sensor.status(), error);
        services_.view.setStatusText(sensorText_);
        refresh();
    }
    observers_.reconnected({.ready = state_.ready, .time = services_.clock.uptime()});
}

void Controller::woke() {
    observers_.woke({.time = services_.clock.uptime()});
    const ScopedCount program(programActions_);
    pause();
    reconnect();
}

void Controller::frameCallback(std::int32_t count, const std::int32_t* ids, const float* xs,
                               const float* ys) {
    if (count < 0) {
        fatalError("Negative contact count");
    }
    ContactFrame frame;
    if (ids != nullptr && xs != nullptr && ys != nullptr) {
        frame.count = std::min(static_cast<std::size_t>(count), ContactFrame::capacity);
        std::copy_n(ids, frame.count, frame.ids.begin());
        std::copy_n(xs, frame.count, frame.xs.begin());
        std::copy_n(ys, frame.count, frame.ys.begin());
    }
    if (Controller* controller = applicationController()) {
        controller->services_.queue.asyncFrame(frame, &Controller::receiveFrame);
    }
}

// The application controller of the moment takes the frame; once it is cleared, nobody does.
void Controller::receiveFrame(const ContactFrame& frame) {
    if (Controller* controller = applicationController()) {
        controller->receive(frame);
    }
}

void Controller::receive(const ContactFrame& frame) {
    frameFingers_.clear();
    for (std::size_t i = 0; i < frame.count; ++i) {
        frameFingers_.emplace_back(frame.ids[i], frame.xs[i], frame.ys[i]);
    }
    receive(frameFingers_);
}

void Controller::receive(std::span<const Finger> fingers) {
    const double now = services_.clock.uptime();
    state_.lastFrame = now;
    // Only an empty frame ends a sequence; the reason is worked out before the state resets.
    const std::optional<DropReason> dropped =
        fingers.empty() ? whyNoTap(state_.gesture, now) : std::nullopt;
    const std::int64_t peak = state_.gesture.peak;
    const std::optional<std::int64_t> count = state_.gesture.update(fingers, now);
    observers_.frameReceived(fingers, now);
    if (!count) {
        if (dropped) {
            observers_.touchDropped({.reason = *dropped, .fingers = peak, .time = now});
        }
        return;
    }
    state_.lastGesture = L("gesture.tap", *count);
    const std::int64_t slot = slot::forTap(*count);
    const ActionIndex action = actionAt(slot);
    observers_.gestureRecognised(
        {.kind = GestureKind::tap, .fingers = *count, .action = action, .time = now});
    const std::optional<SavedShortcut> shortcut = shortcutAt(slot);
    const GestureDispatchContext context = dispatchContext();
    if (!canRunGestures()) {
        observers_.touchDropped(
            {.reason = DropReason::gesturesOff, .fingers = *count, .time = now});
        return;
    }
    scheduleTap(*count, action, shortcut, valueAt(slot), context, now);
}

void Controller::scheduleTap(std::int64_t fingers, ActionIndex action,
                             const std::optional<SavedShortcut>& shortcut, const std::string& value,
                             const GestureDispatchContext& context, double recognisedAt) {
    services_.queue.after(tapDelay, [weak = weak_from_this(), fingers, action, shortcut, value,
                                     context, recognisedAt] {
        if (const auto self = weak.lock()) {
            self->performTap(fingers, action, shortcut, value, context, recognisedAt);
        }
    });
}

void Controller::performTap(std::int64_t fingers, ActionIndex action,
                            const std::optional<SavedShortcut>& shortcut, const std::string& value,
                            const GestureDispatchContext& context, double recognisedAt) {
    const double now = services_.clock.uptime();
    std::optional<DropReason> refused = mayDispatch(context) ? std::nullopt : guardRefusal(context);
    // A click just before the release, or during the wait, means the touch was a click.
    if (!refused && state_.lastClick >= recognisedAt - tapDelay) {
        refused = DropReason::clickAfter;
    }
    if (refused) {
        observers_.actionDropped({.action = action, .reason = *refused, .time = now});
        return;
    }
    perform(action, shortcut, ActionOrigin::tap, fingers, value);
}

}  // namespace tactora
