#include <algorithm>
#include <cstddef>

#include "core/app/ApplicationController.h"
#include "core/app/Controller.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"
#include "core/support/Fatal.h"

namespace tactora {

void Controller::reconnect() {
    pause();
    gesture_.reset();
    lastFrame_ = 0;
    ready_ = services_.sensor.start(&Controller::frameCallback);
    const std::int64_t error = services_.sensor.statusError();
    services_.view.setStatusText(L(services_.sensor.status(), error));
    refresh();
}

void Controller::woke() {
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
        controller->deliver(frame);
    }
}

void Controller::deliver(const ContactFrame& frame) {
    services_.queue.async([weak = weak_from_this(), frame] {
        if (const auto self = weak.lock()) {
            self->receive(frame);
        }
    });
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
    if (!count) {
        return;
    }
    lastGesture_ = L("gesture.tap", *count);
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
    scheduleTap(action, shortcut, context, now);
}

void Controller::scheduleTap(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                             const GestureDispatchContext& context, double recognisedAt) {
    services_.queue.after(tapDelay,
                          [weak = weak_from_this(), action, shortcut, context, recognisedAt] {
                              if (const auto self = weak.lock()) {
                                  self->performTap(action, shortcut, context, recognisedAt);
                              }
                          });
}

void Controller::performTap(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                            const GestureDispatchContext& context, double recognisedAt) {
    if (!mayDispatch(context)) {
        return;
    }
    // A click just before the release, or during the wait, means the touch was a click.
    if (lastClick_ >= recognisedAt - tapDelay) {
        return;
    }
    perform(action, shortcut);
}

}  // namespace tactora
