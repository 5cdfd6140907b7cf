#include "core/actions/ActionCatalogue.h"
#include "core/actions/MouseEventType.h"
#include "core/app/ButtonRewrite.h"
#include "core/app/Controller.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"

namespace tactora {

namespace {

// The event being decided, watched for a rewrite on its way through the decision.
class WatchedEvent final : public TapEvent {
  public:
    explicit WatchedEvent(TapEvent& event) : event_(event) {}

    std::int64_t integerField(EventField field) const override {
        return event_.integerField(field);
    }
    void setIntegerField(EventField field, std::int64_t value) override {
        if (field == event::buttonNumber) {
            button_ = value;
        }
        event_.setIntegerField(field, value);
    }
    void setType(EventType type) override { event_.setType(type); }
    void setFlags(std::uint64_t flags) override { event_.setFlags(flags); }

    // The button it was turned into, if it was.
    std::optional<std::int64_t> rewrittenButton() const { return button_; }

  private:
    TapEvent& event_;
    std::optional<std::int64_t> button_;
};

// What the devices beside the Magic Mouse make of an event the mouse did not send.
EventDisposition decideForDevice(DeviceEvents* events, EventType type, TapEvent& event) {
    if (events == nullptr) {
        return EventDisposition::pass;
    }
    return events->decide(type, event).value_or(EventDisposition::pass);
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
    EventDisposition disposition = EventDisposition::pass;
    {
        // The observers hear of this event once the tap has its answer.
        const ObserverList::Deferral deferral(observers_);
        if (type == event::tapDisabledByTimeout || type == event::tapDisabledByUserInput) {
            tapDisabled();
        } else if (event.integerField(event::sourceUserData) != marker) {
            if (MouseEventNote* note = observers_.deferMouseEvent()) {
                disposition = decideNoted(type, event, *note);
            } else if (canRunGestures()) {
                disposition = isFromMouse(event)
                                  ? decide(type, event)
                                  : decideForDevice(services_.deviceEvents.get(), type, event);
            }
        }
    }
    // What the event caused beyond the answer (the observers' notes, the action of a swallowed
    // release) runs from one main-queue task, once the tap has its answer; events that come
    // before that task runs join it.
    if ((observers_.hasKept() || !released_.empty()) && !handOffPosted_) {
        handOffPosted_ = true;
        services_.queue.async([weak = weak_from_this()] {
            if (const auto self = weak.lock()) {
                self->handOffPosted_ = false;
                self->observers_.tellKept();
                self->performReleased();
            }
        });
    }
    return disposition;
}

EventDisposition Controller::decideNoted(EventType type, TapEvent& event, MouseEventNote& note) {
    note = {.type = type,
            .button = event.integerField(event::buttonNumber),
            .fromMouse = isFromMouse(event),
            .fate = MouseEventFate::passed,
            .rewrittenTo = MouseButton::left,
            .time = services_.clock.uptime(),
            .sender = static_cast<std::uint64_t>(event.integerField(event::senderID))};
    if (!canRunGestures()) {
        return EventDisposition::pass;
    }
    WatchedEvent watched(event);
    const EventDisposition disposition =
        note.fromMouse ? decide(type, watched)
                       : decideForDevice(services_.deviceEvents.get(), type, watched);
    if (disposition == EventDisposition::swallow) {
        note.fate = MouseEventFate::swallowed;
    } else if (const std::optional<std::int64_t> button = watched.rewrittenButton()) {
        note.fate = MouseEventFate::rewritten;
        note.rewrittenTo = static_cast<MouseButton>(*button);
    }
    return disposition;
}

EventDisposition Controller::decide(EventType type, TapEvent& event) {
    const double now = services_.clock.uptime();
    TouchJudge* judge = services_.judge.get();
    if (type == event::scrollWheel) {
        if (judge == nullptr || judge->scroll(now)) {
            state_.gesture.moved = true;
        }
        const GestureExtension* extension = services_.extension.get();
        return extension != nullptr && extension->swallowsScroll() ? EventDisposition::swallow
                                                                   : EventDisposition::pass;
    }
    const std::int64_t button = event.integerField(event::buttonNumber);
    if (isPhysicalDown(type)) {
        return pressDown(event, button, now);
    }
    if (isPhysicalUp(type) && judge != nullptr) {
        judge->button(false, now);
    }
    return pressContinues(type, event, button);
}

void Controller::releasePresses() {
    if (state_.presses.empty()) {
        return;
    }
    PressesReleasedNote note{.buttons = {}, .count = 0, .time = services_.clock.uptime()};
    for (const auto& [physical, press] : state_.presses) {
        if (press.button) {
            post(*press.button, false, 1, catalogue::pressFlags(press.action).value_or(0));
            if (note.count < note.buttons.size()) {
                note.buttons.at(note.count++) = *press.button;
            }
        }
    }
    state_.presses.clear();
    observers_.pressesReleased(note);
}

void Controller::tapDisabled() {
    // Not re-enabled here: a tap the system switched off pauses the program.
    releasePresses();
    services_.view.setEnabledOn(false);
    services_.view.setStatusText(L("error.paused"));
    observers_.switchChanged(
        {.on = false, .byUser = false, .tapDisabled = true, .time = services_.clock.uptime()});
}

bool Controller::isFromMouse(const TapEvent& event) {
    const auto sender = static_cast<std::uint64_t>(event.integerField(event::senderID));
    if (sender != state_.lastSender) {
        state_.lastSender = sender;
        state_.senderIsMouse = services_.sensor.isMouseSender(sender);
    }
    return state_.senderIsMouse;
}

EventDisposition Controller::pressDown(TapEvent& event, std::int64_t button, double now) {
    state_.lastClick = now;
    state_.gesture.physicalClick();
    if (GestureExtension* extension = services_.extension.get()) {
        extension->physicalClick();
    }
    TouchJudge* judge = services_.judge.get();
    if (judge != nullptr) {
        judge->button(true, now);
    }
    const std::int64_t fingers = state_.gesture.count;
    if (now - state_.lastFrame >= freshContact || fingers < 1 ||
        fingers > GestureState::maxFingers) {
        return EventDisposition::pass;
    }
    if (const std::optional<DropReason> ordinary =
            judge != nullptr ? judge->judgeClick() : std::nullopt) {
        observers_.touchDropped({.reason = *ordinary, .fingers = fingers, .time = now});
        return EventDisposition::pass;
    }
    state_.lastGesture = L("gesture.click", fingers);
    const std::int64_t slot = slot::forClick(fingers);
    const ActionIndex action = actionAt(slot);
    observers_.gestureRecognised(
        {.kind = GestureKind::click, .fingers = fingers, .action = action, .time = now});
    if (action == action::defaultAction) {
        return EventDisposition::pass;
    }
    const Press press{
        .action = action,
        .shortcut = shortcutAt(slot),
        .button = catalogue::pressTarget(action),
        .context = dispatchContext(),
        .fingers = fingers,
        .value = valueAt(slot),
    };
    state_.presses.insert_or_assign(button, press);
    if (!press.button) {
        return EventDisposition::swallow;
    }
    // A rewritten press does its action now; a swallowed one does it on release.
    observers_.actionPerformed({
        .action = action,
        .shortcut = press.shortcut,
        .origin = ActionOrigin::click,
        .fingers = fingers,
        .asButton = press.button,
        .time = now,
    });
    rewritePress(event, press, true, false);
    return EventDisposition::pass;
}

EventDisposition Controller::pressContinues(EventType type, TapEvent& event, std::int64_t button) {
    if (!isPhysicalDrag(type) && !isPhysicalUp(type)) {
        return EventDisposition::pass;
    }
    const auto held = state_.presses.find(button);
    if (held == state_.presses.end()) {
        return EventDisposition::pass;
    }
    if (isPhysicalDrag(type)) {
        if (!held->second.button) {
            return EventDisposition::swallow;
        }
        rewritePress(event, held->second, false, true);
        return EventDisposition::pass;
    }
    Press press = std::move(held->second);
    state_.presses.erase(held);
    if (press.button) {
        rewritePress(event, press, false, false);
        return EventDisposition::pass;
    }
    released_.push_back(std::move(press));
    return EventDisposition::swallow;
}

void Controller::performReleased() {
    // What an action does never reaches the tap, so nothing is added meanwhile.
    for (const Press& press : released_) {
        if (const std::optional<DropReason> refused = guardRefusal(press.context)) {
            observers_.actionDropped(
                {.action = press.action, .reason = *refused, .time = services_.clock.uptime()});
        } else {
            perform(press.action, press.shortcut, ActionOrigin::click, press.fingers, press.value);
        }
    }
    released_.clear();
}

}  // namespace tactora
