#include "core/actions/ActionCatalogue.h"
#include "core/actions/MouseEventType.h"
#include "core/app/Controller.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"
#include "core/trace/TraceFormat.h"

namespace tactora {

namespace {

bool isDown(EventType type) {
    return type == event::leftMouseDown || type == event::rightMouseDown;
}
bool isUp(EventType type) {
    return type == event::leftMouseUp || type == event::rightMouseUp;
}
bool isDrag(EventType type) {
    return type == event::leftMouseDragged || type == event::rightMouseDragged;
}

}  // namespace

bool Controller::installTap() {
    EventTap& tap = services_.tap;
    if (!tap.exists() && !tap.create(event::tapMask)) {
        return false;
    }
    tap.setEnabled(true);
    return true;
}

EventDisposition Controller::handle(EventType type, TapEvent& event) {
    if (type == event::tapDisabledByTimeout || type == event::tapDisabledByUserInput) {
        tapDisabled();
        return EventDisposition::pass;
    }
    if (event.integerField(event::sourceUserData) == marker) {
        return EventDisposition::pass;
    }
    if (trace_.isRecording()) {
        noteTapEvent(type, event);
    }
    if (!canRunGestures() || !isFromMouse(event)) {
        return EventDisposition::pass;
    }
    const double now = services_.clock.uptime();
    if (type == event::scrollWheel) {
        gesture_.moved = true;
        return EventDisposition::pass;
    }
    const std::int64_t button = event.integerField(event::buttonNumber);
    if (isDown(type)) {
        return pressDown(event, button, now);
    }
    return pressContinues(type, event, button);
}

void Controller::rewrite(TapEvent& event, MouseButton button, bool down, bool drag) {
    const MouseMotion motion = drag   ? MouseMotion::drag
                               : down ? MouseMotion::down
                                      : MouseMotion::up;
    event.setType(mouseEventType(button, motion));
    event.setIntegerField(event::buttonNumber, static_cast<std::int64_t>(button));
}

void Controller::rewritePress(TapEvent& event, const Press& press, bool down, bool drag) {
    rewrite(event, *press.button, down, drag);
    if (const std::optional<std::uint64_t> flags = catalogue::pressFlags(press.action)) {
        event.setFlags(*flags);
    }
}

void Controller::releasePresses() {
    for (const auto& [physical, press] : presses_) {
        if (press.button) {
            post(*press.button, false, 1);
        }
    }
    presses_.clear();
}

void Controller::tapDisabled() {
    // Not re-enabled here: a tap the system switched off pauses the program.
    releasePresses();
    services_.view.setEnabledOn(false);
    services_.view.setStatusText(L("error.paused"));
    syncActivity();
    noteGestures();
    if (!keepOn_.enabled() || !keepOn_.wanted()) {
        return;
    }
    if (const std::optional<double> seconds = keepOn_.tapDisabled(services_.clock.uptime())) {
        coolDown(*seconds);
    }
}

void Controller::noteTapEvent(EventType type, const TapEvent& event) {
    if (trace::mouseEventWord(type).empty()) {
        return;
    }
    const double now = services_.clock.uptime();
    const bool fromMouse = isFromMouse(event);
    noteFrontApplication(now);
    noteTrace(now, TraceMouseEvent{type, event.integerField(event::buttonNumber), fromMouse});
}

bool Controller::isFromMouse(const TapEvent& event) {
    const auto sender = static_cast<std::uint64_t>(event.integerField(event::senderID));
    if (sender != lastSender_) {
        lastSender_ = sender;
        senderIsMouse_ = services_.sensor.isMouseSender(sender);
    }
    return senderIsMouse_;
}

EventDisposition Controller::pressDown(TapEvent& event, std::int64_t button, double now) {
    lastClick_ = now;
    gesture_.physicalClick();
    const std::int64_t fingers = gesture_.count;
    if (now - lastFrame_ >= freshContact || fingers < 1 || fingers > GestureState::maxFingers) {
        return EventDisposition::pass;
    }
    lastGesture_ = L("gesture.click", fingers);
    noteGesture(GestureKind::click, fingers, now);
    if (observer_ != nullptr) {
        observer_->clickRecognised(fingers);
    }
    const std::int64_t slot = slot::forClick(fingers);
    const ActionIndex action = actionAt(slot);
    if (action == action::defaultAction) {
        return EventDisposition::pass;
    }
    const Press press{action, shortcutAt(slot), catalogue::pressTarget(action), dispatchContext(),
                      valueAt(slot)};
    presses_.insert_or_assign(button, press);
    fireFeedback(fingers, now);
    if (!press.button) {
        return EventDisposition::swallow;
    }
    // A rewritten press does its action now; a swallowed one does it on release.
    noteAction(action, press.shortcut, now);
    if (observer_ != nullptr) {
        observer_->pressRewritten(action, *press.button);
    }
    rewritePress(event, press, true, false);
    return EventDisposition::pass;
}

EventDisposition Controller::pressContinues(EventType type, TapEvent& event, std::int64_t button) {
    if (!isDrag(type) && !isUp(type)) {
        return EventDisposition::pass;
    }
    const auto held = presses_.find(button);
    if (held == presses_.end()) {
        return EventDisposition::pass;
    }
    if (isDrag(type)) {
        if (!held->second.button) {
            return EventDisposition::swallow;
        }
        rewritePress(event, held->second, false, true);
        return EventDisposition::pass;
    }
    const Press press = held->second;
    presses_.erase(held);
    if (press.button) {
        rewritePress(event, press, false, false);
        return EventDisposition::pass;
    }
    performOnRelease(press);
    return EventDisposition::swallow;
}

void Controller::performOnRelease(const Press& press) {
    // Queued, so that the action runs after the tap callback has returned.
    services_.queue.async([weak = weak_from_this(), press] {
        const auto self = weak.lock();
        if (self && self->mayDispatch(press.context)) {
            self->noteAction(press.action, press.shortcut, self->services_.clock.uptime());
            self->perform(press.action, press.shortcut, press.value);
        }
    });
}

}  // namespace tactora
