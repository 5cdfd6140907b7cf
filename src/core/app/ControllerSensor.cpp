#include <algorithm>
#include <cstddef>

#include "core/app/ApplicationController.h"
#include "core/app/Controller.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"
#include "core/support/Fatal.h"
#include "core/support/ScopedCount.h"

namespace tactora {

void Controller::reconnect() {
    {
        const ScopedCount program(programActions_);
        pause();
        gesture_.reset();
        lastFrame_ = 0;
        ready_ = services_.sensor.start(&Controller::frameCallback);
        const std::int64_t error = services_.sensor.statusError();
        sensorText_ = L(services_.sensor.status(), error);
        services_.view.setStatusText(sensorText_);
        refresh();
    }
    afterReconnect();
}

void Controller::woke() {
    keepOn_.woke();
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
    lastFrame_ = now;
    if (trace_.isRecording()) {
        noteFrontApplication(now);
        noteTrace(now, TraceFrame{{fingers.begin(), fingers.end()}});
    }
    const std::optional<std::int64_t> count = gesture_.update(fingers, now);
    if (surfaceVisible_) {
        surface_.frame(fingers, now);
    }
    if (!count) {
        if (surfaceVisible_) {
            showSurface();
        }
        return;
    }
    lastGesture_ = L("gesture.tap", *count);
    noteGesture(GestureKind::tap, *count, now);
    if (observer_ != nullptr) {
        observer_->tapRecognised(*count);
    }
    const std::int64_t slot = slot::forTap(*count);
    const ActionIndex action = actionAt(slot);
    const std::optional<SavedShortcut> shortcut = shortcutAt(slot);
    const GestureDispatchContext context = dispatchContext();
    if (!canRunGestures()) {
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
    if (!mayDispatch(context)) {
        return;
    }
    // A click just before the release, or during the wait, means the touch was a click.
    if (lastClick_ >= recognisedAt - tapDelay) {
        return;
    }
    if (action != action::defaultAction) {
        const double now = services_.clock.uptime();
        fireFeedback(fingers, now);
        noteAction(action, shortcut, now);
    }
    perform(action, shortcut, value);
}

}  // namespace tactora
