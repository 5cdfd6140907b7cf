#include <algorithm>
#include <cstddef>

#include "core/app/ApplicationController.h"
#include "core/app/Controller.h"
#include "core/app/TouchStep.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"
#include "core/support/Fatal.h"
#include "core/support/ScopedCount.h"

namespace tactora {

namespace {

// Why `tap` is not to act now that its action comes due, the last click having come at `click`.
std::optional<DropReason> vetoAtDue(const TouchJudge* judge, double click, const PendingTap& tap) {
    if (judge != nullptr) {
        return judge->vetoAtDue(click, tap.began, tap.recognisedAt, Controller::tapDelay);
    }
    // A click just before the release, or during the wait, means the touch was a click.
    if (click >= tap.recognisedAt - Controller::tapDelay) {
        return DropReason::clickAfter;
    }
    return std::nullopt;
}

// What the extension, if listening, makes of the frame the recogniser was just fed.
std::optional<GestureAct> extensionAct(GestureExtension* extension, const Controller& controller,
                                       const TouchStep& step, double now) {
    if (extension == nullptr || !step.fed || !extension->listening()) {
        return std::nullopt;
    }
    if (step.restarted) {
        // What was seen of the touch so far is no gesture, for the extension either.
        extension->reset();
    }
    return extension->frame(step.fingers, now, controller.state().gesture, step.tap,
                            controller.canRunGestures());
}

}  // namespace

void Controller::reconnect() {
    {
        const ScopedCount program(programActions_);
        pause();
        resetTouch(state_.gesture, services_.judge.get(), services_.extension.get());
        state_.lastFrame = 0;
        state_.ready = services_.sensor.start(&Controller::frameCallback);
        const std::int64_t error = services_.sensor.statusError();
        sensorText_ = L(services_.sensor.status(), error);
        services_.view.setStatusText(sensorText_);
        refresh();
    }
    observers_.reconnected({.ready = state_.ready, .time = services_.clock.uptime()});
}

void Controller::sensorFollowed() {
    if (services_.sensor.connectedDevice() == 0) {
        releasePresses();
    }
    sensorText_ = L(services_.sensor.status(), services_.sensor.statusError());
    services_.view.setStatusText(sensorText_);
    refresh();
}

void Controller::woke() {
    observers_.woke({.time = services_.clock.uptime()});
    const ScopedCount program(programActions_);
    pause();
    reconnect();
}

void Controller::frameCallback(std::int32_t count, const std::int32_t* ids, const float* xs,
                               const float* ys, const float* shapes) {
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
    if (shapes != nullptr && frame.count > 0) {
        frame.hasShapes = true;
        for (std::size_t i = 0; i < frame.count; ++i) {
            const float* values = shapes + i * 4;
            frame.shapes.at(i) = {values[0], values[1], values[2], values[3]};
        }
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
    frameShapes_.clear();
    for (std::size_t i = 0; i < frame.count; ++i) {
        frameFingers_.emplace_back(frame.ids[i], frame.xs[i], frame.ys[i]);
        if (frame.hasShapes) {
            frameShapes_.emplace_back(frame.shapes.at(i));
        }
    }
    receive(frameFingers_, frameShapes_);
}

void Controller::receive(std::span<const Finger> fingers,
                         std::span<const std::optional<ContactShape>> shapes) {
    const double now = services_.clock.uptime();
    state_.lastFrame = now;
    const TouchStep step = stepTouch(state_.gesture, services_.judge.get(), fingers, shapes, now);
    const std::optional<GestureAct> act = extensionAct(services_.extension.get(), *this, step, now);
    observers_.frameReceived({.fingers = fingers, .shapes = shapes, .time = now});
    if (step.dropped) {
        observers_.touchDropped(
            {.reason = *step.dropped, .fingers = step.droppedFingers, .time = now});
    }
    if (act && act->kind == GestureAct::Kind::perform) {
        perform(act->action, act->shortcut, ActionOrigin::moreGesture, act->fingers, act->value);
    }
    if (!step.tap) {
        return;
    }
    const std::int64_t count = *step.tap;
    state_.lastGesture = L("gesture.tap", count);
    const std::int64_t slot = slot::forTap(count);
    const bool instead = act && act->kind == GestureAct::Kind::tapInstead;
    const ActionIndex action = instead ? act->action : actionAt(slot);
    observers_.gestureRecognised(
        {.kind = GestureKind::tap, .fingers = count, .action = action, .time = now});
    if (!canRunGestures()) {
        observers_.touchDropped({.reason = DropReason::gesturesOff, .fingers = count, .time = now});
        return;
    }
    scheduleTap({.fingers = count,
                 .action = action,
                 .shortcut = instead ? act->shortcut : shortcutAt(slot),
                 .value = instead ? act->value : valueAt(slot),
                 .context = dispatchContext(),
                 .began = step.began,
                 .recognisedAt = now});
}

void Controller::scheduleTap(PendingTap tap) {
    services_.queue.after(tapDelay, [weak = weak_from_this(), tap = std::move(tap)] {
        if (const auto self = weak.lock()) {
            self->performTap(tap);
        }
    });
}

void Controller::performTap(const PendingTap& tap) {
    const double now = services_.clock.uptime();
    std::optional<DropReason> refused =
        mayDispatch(tap.context) ? std::nullopt : guardRefusal(tap.context);
    if (!refused) {
        refused = vetoAtDue(services_.judge.get(), state_.lastClick, tap);
    }
    if (refused) {
        observers_.actionDropped({.action = tap.action, .reason = *refused, .time = now});
        return;
    }
    perform(tap.action, tap.shortcut, ActionOrigin::tap, tap.fingers, tap.value);
}

}  // namespace tactora
