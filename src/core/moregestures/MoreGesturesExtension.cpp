#include "core/moregestures/MoreGesturesExtension.h"

#include "core/actions/ActionCatalogue.h"
#include "core/actions/MouseEventType.h"
#include "core/app/Globals.h"
#include "core/profiles/ProfileStore.h"

namespace tactora {

namespace {

bool isRegionTap(MoreGestureSlot slot) {
    return slot == MoreGestureSlot::tapLeft || slot == MoreGestureSlot::tapRight ||
           slot == MoreGestureSlot::tapTop;
}

// The finger count of a slot's gesture, as the observers are told it.
std::int64_t fingersOf(MoreGestureSlot slot) {
    if (moreslot::isSwipe(slot)) {
        return static_cast<std::int64_t>(
                   (moreslot::index(slot) - moreslot::index(MoreGestureSlot::swipe1Up)) / 4) +
               1;
    }
    return slot == MoreGestureSlot::tipTapLeft || slot == MoreGestureSlot::tipTapRight ? 2 : 1;
}

}  // namespace

MoreGesturesExtension::MoreGesturesExtension(MoreGestureServices services) : services_(services) {}

void MoreGesturesExtension::follow(ProfileSwitcher& profiles) {
    // The store is read from launch on: reading it earlier would write a first profile before
    // the program has decided anything.
    profiles_ = &profiles;
}

const MoreGestureMap* MoreGesturesExtension::mapping() {
    return profiles_ != nullptr && launched_ ? &profiles_->profiles().current().moreGestures
                                             : nullptr;
}

std::optional<GestureAct> MoreGesturesExtension::frame(std::span<const Finger> fingers, double now,
                                                       const GestureState& gesture,
                                                       std::optional<std::int64_t> tap,
                                                       bool mayAct) {
    if (!mayAct) {
        reset();
        return std::nullopt;
    }
    return carryOut(recognisers_.update(fingers, now, gesture, tap));
}

void MoreGesturesExtension::physicalClick() {
    (void)carryOut(recognisers_.physicalClick());
}

void MoreGesturesExtension::reset() {
    (void)carryOut(recognisers_.cancel());
}

std::optional<GestureAct> MoreGesturesExtension::carryOut(std::optional<MoreGestureEvent> event) {
    if (!event) {
        return std::nullopt;
    }
    if (event->kind == MoreGestureEvent::Kind::holdEnded) {
        release();
        return std::nullopt;
    }
    const MoreGestureMap* map = mapping();
    if (map == nullptr) {
        return std::nullopt;
    }
    const ActionIndex action = map->action(event->slot);
    if (watcher_ != nullptr) {
        watcher_->recognised(event->slot);
    }
    // A button is held for as long as the finger rests; any other action, the further actions'
    // modifier clicks among them, runs once.
    if (event->kind == MoreGestureEvent::Kind::holdBegan && !action::isExtra(action)) {
        if (const std::optional<MouseButton> button = catalogue::pressTarget(action)) {
            press(*button);
            return std::nullopt;
        }
    }
    const auto kind =
        isRegionTap(event->slot) ? GestureAct::Kind::tapInstead : GestureAct::Kind::perform;
    return GestureAct{.kind = kind,
                      .action = action,
                      .shortcut = map->shortcut(event->slot),
                      .value = map->value(event->slot),
                      .fingers = fingersOf(event->slot)};
}

void MoreGesturesExtension::press(MouseButton button) {
    release();
    services_.poster.post(MouseButtonEvent{.type = mouseEventType(button, MouseMotion::down),
                                           .button = button,
                                           .clickState = 1,
                                           .userData = marker,
                                           .flags = 0});
    held_ = button;
    services_.dragger.setDragging(button);
    if (watcher_ != nullptr) {
        watcher_->pressed(button);
    }
}

void MoreGesturesExtension::release() {
    if (!held_) {
        return;
    }
    services_.dragger.setDragging(std::nullopt);
    services_.poster.post(MouseButtonEvent{.type = mouseEventType(*held_, MouseMotion::up),
                                           .button = *held_,
                                           .clickState = 1,
                                           .userData = marker,
                                           .flags = 0});
    if (watcher_ != nullptr) {
        watcher_->released(*held_);
    }
    held_.reset();
}

void MoreGesturesExtension::configure() {
    const MoreGestureMap* map = mapping();
    (void)carryOut(recognisers_.configure(map != nullptr ? MoreGestureSettings::of(*map)
                                                         : MoreGestureSettings{}));
}

void MoreGesturesExtension::launched(double /*time*/) {
    launched_ = true;
    configure();
}

void MoreGesturesExtension::profileSelected(const ProfileNote& /*note*/) {
    configure();
}

void MoreGesturesExtension::refreshed(double /*time*/) {
    const MoreGestureMap* map = mapping();
    // Never in the middle of a gesture: the change waits for the next refresh.
    if (map != nullptr && MoreGestureSettings::of(*map) != recognisers_.settings() &&
        !recognisers_.busy()) {
        (void)carryOut(recognisers_.configure(MoreGestureSettings::of(*map)));
    }
}

void MoreGesturesExtension::switchChanged(const SwitchNote& note) {
    if (!note.on) {
        reset();
    }
}

void MoreGesturesExtension::woke(const MomentNote& /*note*/) {
    reset();
}

void MoreGesturesExtension::terminating(double /*time*/) {
    reset();
}

}  // namespace tactora
