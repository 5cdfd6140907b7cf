#include "core/devices/DeviceGestures.h"

#include <algorithm>
#include <utility>

#include "core/actions/ActionCatalogue.h"
#include "core/app/ButtonRewrite.h"
#include "core/app/Controller.h"
#include "core/profiles/GestureSlot.h"

namespace tactora {

namespace {

bool isTrackpad(TouchDeviceKind kind) {
    return kind == TouchDeviceKind::magicTrackpad || kind == TouchDeviceKind::builtInTrackpad;
}

bool inUse(const std::vector<TouchDevice>& devices, std::uint64_t id) {
    return std::ranges::any_of(devices, [id](const TouchDevice& device) {
        return device.id == id && device.state == TouchDeviceState::connected;
    });
}

// Room for every press two hands can hold, so that holding one allocates nothing of its own.
constexpr std::size_t reservedPresses = 8;

}  // namespace

std::atomic<DeviceGestures*> DeviceGestures::receiver_{nullptr};

DeviceGestures::DeviceGestures(DeviceGestureServices services)
    : services_(std::move(services)), choice_(services_.defaults) {
    fingers_.reserve(ContactFrame::capacity);
    presses_.reserve(reservedPresses);
    released_.reserve(reservedPresses);
    // Chosen before the launch's first connection, so that it starts the chosen devices too and
    // a Mac with a trackpad and no Magic Mouse can switch gestures on.
    receiver_.store(this);
    services_.devices.useOthers(&DeviceGestures::frameArrived, [this](const TouchDevice& device) {
        return device.kind != TouchDeviceKind::magicMouse && choice_.uses(device);
    });
}

DeviceGestures::~DeviceGestures() {
    DeviceGestures* self = this;
    receiver_.compare_exchange_strong(self, nullptr);
}

bool DeviceGestures::uses(const TouchDevice& device) const {
    return device.kind == TouchDeviceKind::magicMouse || choice_.uses(device);
}

void DeviceGestures::setUses(const TouchDevice& device, bool use) {
    if (device.kind == TouchDeviceKind::magicMouse) {
        return;
    }
    choice_.setUses(device, use);
    if (watcher_ != nullptr) {
        watcher_->useChosen(device, use, services_.clock.uptime());
    }
    if (using_) {
        devicesChanged();
    } else if (listChanged_) {
        listChanged_();
    }
}

bool DeviceGestures::othersInUse() const {
    return std::ranges::any_of(devices(), [](const TouchDevice& device) {
        return device.kind != TouchDeviceKind::magicMouse &&
               device.state == TouchDeviceState::connected;
    });
}

bool DeviceGestures::trackpadSeen() const {
    return std::ranges::any_of(devices(),
                               [](const TouchDevice& device) { return isTrackpad(device.kind); });
}

// --- Frames ---------------------------------------------------------------------------------

void DeviceGestures::frameArrived(const ContactFrame& frame) {
    if (DeviceGestures* receiver = receiver_.load()) {
        receiver->services_.queue.asyncFrame(frame, &DeviceGestures::receiveFrame);
    }
}

void DeviceGestures::receiveFrame(const ContactFrame& frame) {
    if (DeviceGestures* receiver = receiver_.load()) {
        receiver->receive(frame);
    }
}

void DeviceGestures::receive(const ContactFrame& frame) {
    const double now = services_.clock.uptime();
    if (watcher_ != nullptr) {
        watcher_->frameReceived(frame, now);
    }
    fingers_.clear();
    for (std::size_t i = 0; i < std::min(frame.count, ContactFrame::capacity); ++i) {
        fingers_.emplace_back(frame.ids.at(i), frame.xs.at(i), frame.ys.at(i));
    }
    const std::optional<std::int64_t> tap = recognisers_.update(frame.device, fingers_, now);
    if (!tap || runner_ == nullptr) {
        return;
    }
    if (watcher_ != nullptr) {
        watcher_->recognised(frame.device, GestureKind::tap, *tap);
    }
    SlotAction slot = runner_->trackpadSlot(slot::forTap(*tap));
    if (slot.action == action::defaultAction || !runner_->canRunGestures()) {
        return;
    }
    scheduleTap(frame.device, {.fingers = *tap,
                               .action = slot.action,
                               .shortcut = std::move(slot.shortcut),
                               .value = std::move(slot.value),
                               .context = runner_->dispatchContext(),
                               .began = 0,
                               .recognisedAt = now});
}

void DeviceGestures::scheduleTap(std::uint64_t device, PendingTap tap) {
    services_.queue.after(Controller::tapDelay,
                          [weak = weak_from_this(), device, tap = std::move(tap)] {
                              if (const auto self = weak.lock()) {
                                  self->performTap(device, tap);
                              }
                          });
}

void DeviceGestures::performTap(std::uint64_t device, const PendingTap& tap) {
    if (runner_ == nullptr || !runner_->mayDispatch(tap.context)) {
        return;
    }
    // A click on the same device just before the release, or during the wait, means the touch
    // was a click; a click on another device says nothing about it.
    const DeviceRecognisers::Touch* touch = recognisers_.find(device);
    if (touch != nullptr && touch->lastClick >= tap.recognisedAt - Controller::tapDelay) {
        return;
    }
    if (watcher_ != nullptr) {
        watcher_->actionBegins(device);
    }
    runner_->perform({.action = tap.action, .shortcut = tap.shortcut, .value = tap.value},
                     ActionOrigin::tap, tap.fingers);
    if (watcher_ != nullptr) {
        watcher_->actionEnded();
    }
}

// --- Events of the tap ----------------------------------------------------------------------

std::optional<EventDisposition> DeviceGestures::decide(EventType type, TapEvent& event) {
    const std::uint64_t device = deviceFor(event);
    if (device == 0 || runner_ == nullptr) {
        return std::nullopt;
    }
    const double now = services_.clock.uptime();
    if (type == event::scrollWheel) {
        recognisers_.scrolled(device);
        return EventDisposition::pass;
    }
    const std::int64_t button = event.integerField(event::buttonNumber);
    if (isPhysicalDown(type)) {
        return pressDown(device, event, button, now);
    }
    return pressContinues(device, type, event, button);
}

std::uint64_t DeviceGestures::deviceFor(const TapEvent& event) {
    return deviceOfSender(static_cast<std::uint64_t>(event.integerField(event::senderID)));
}

std::uint64_t DeviceGestures::deviceOfSender(std::uint64_t sender) {
    if (!using_) {
        return 0;
    }
    if (sender != lastSender_) {
        lastSender_ = sender;
        senderDevice_ = services_.devices.deviceForSender(sender);
    }
    return senderDevice_;
}

EventDisposition DeviceGestures::pressDown(std::uint64_t device, TapEvent& event,
                                           std::int64_t button, double now) {
    recognisers_.physicalClick(device, now);
    const DeviceRecognisers::Touch* touch = recognisers_.find(device);
    const std::int64_t fingers = touch->gesture.count;
    if (now - touch->lastFrame >= Controller::freshContact || fingers < 1 ||
        fingers > GestureState::maxFingers) {
        return EventDisposition::pass;
    }
    if (watcher_ != nullptr) {
        watcher_->recognised(device, GestureKind::click, fingers);
    }
    SlotAction slot = runner_->trackpadSlot(slot::forClick(fingers));
    if (slot.action == action::defaultAction) {
        return EventDisposition::pass;
    }
    Press press{
        .action = slot.action,
        .shortcut = std::move(slot.shortcut),
        .button = catalogue::pressTarget(slot.action),
        .context = runner_->dispatchContext(),
        .fingers = fingers,
        .value = std::move(slot.value),
    };
    std::erase_if(presses_, [device, button](const HeldPress& held) {
        return held.device == device && held.button == button;
    });
    presses_.push_back({.device = device, .button = button, .press = std::move(press)});
    const Press& held = presses_.back().press;
    if (!held.button) {
        return EventDisposition::swallow;
    }
    rewritePress(event, held, true, false);
    if (watcher_ != nullptr) {
        watcher_->rewritten(device, held.action, *held.button);
    }
    return EventDisposition::pass;
}

EventDisposition DeviceGestures::pressContinues(std::uint64_t device, EventType type,
                                                TapEvent& event, std::int64_t button) {
    if (!isPhysicalDrag(type) && !isPhysicalUp(type)) {
        return EventDisposition::pass;
    }
    const auto held = std::ranges::find_if(presses_, [device, button](const HeldPress& press) {
        return press.device == device && press.button == button;
    });
    if (held == presses_.end()) {
        return EventDisposition::pass;
    }
    if (isPhysicalDrag(type)) {
        if (!held->press.button) {
            return EventDisposition::swallow;
        }
        rewritePress(event, held->press, false, true);
        return EventDisposition::pass;
    }
    Press press = std::move(held->press);
    presses_.erase(held);
    if (press.button) {
        rewritePress(event, press, false, false);
        return EventDisposition::pass;
    }
    released_.push_back({.device = device, .button = button, .press = std::move(press)});
    if (!handOffPosted_) {
        handOffPosted_ = true;
        services_.queue.async([weak = weak_from_this()] {
            if (const auto self = weak.lock()) {
                self->handOffPosted_ = false;
                self->performReleased();
            }
        });
    }
    return EventDisposition::swallow;
}

void DeviceGestures::performReleased() {
    // What an action does never reaches the tap, so nothing is added meanwhile.
    for (const HeldPress& held : released_) {
        const Press& press = held.press;
        if (runner_ == nullptr || !runner_->mayDispatch(press.context)) {
            continue;
        }
        if (watcher_ != nullptr) {
            watcher_->actionBegins(held.device);
        }
        runner_->perform({.action = press.action, .shortcut = press.shortcut, .value = press.value},
                         ActionOrigin::click, press.fingers);
        if (watcher_ != nullptr) {
            watcher_->actionEnded();
        }
    }
    released_.clear();
}

// --- Held presses and touches ---------------------------------------------------------------

void DeviceGestures::releasePresses(std::optional<std::uint64_t> device) {
    std::erase_if(presses_, [this, device](const HeldPress& held) {
        if (device && held.device != *device) {
            return false;
        }
        if (held.press.button && runner_ != nullptr) {
            runner_->post(*held.press.button, false,
                          catalogue::pressFlags(held.press.action).value_or(0));
        }
        return true;
    });
}

void DeviceGestures::stopTouches() {
    releasePresses();
    recognisers_.resetAll();
}

void DeviceGestures::devicesChanged() {
    services_.devices.refresh();
    lastSender_.reset();
    const std::vector<TouchDevice> now = devices();
    std::vector<std::uint64_t> gone;
    for (const HeldPress& held : presses_) {
        if (!inUse(now, held.device)) {
            gone.push_back(held.device);
        }
    }
    for (const std::uint64_t device : gone) {
        releasePresses(device);
    }
    // A device no longer in use takes its half-seen touch along, so that nothing of it can end
    // a tap when a device with the same id sends again.
    recognisers_.forgetAllBut([&now](std::uint64_t device) { return inUse(now, device); });
    if (listChanged_) {
        listChanged_();
    }
}

// --- What the controller tells ----------------------------------------------------------------

void DeviceGestures::launched(double /*time*/) {
    using_ = true;
    devicesChanged();
    services_.devices.watch([weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->devicesChanged();
        }
    });
}

void DeviceGestures::reconnected(const ReconnectNote& /*note*/) {
    lastSender_.reset();
    stopTouches();
}

void DeviceGestures::switchChanged(const SwitchNote& note) {
    if (!note.on) {
        stopTouches();
    }
}

void DeviceGestures::profileSelected(const ProfileNote& /*note*/) {
    stopTouches();
}

void DeviceGestures::activeChanged(const ActiveNote& /*note*/) {
    stopTouches();
}

void DeviceGestures::woke(const MomentNote& /*note*/) {
    stopTouches();
}

void DeviceGestures::terminating(double /*time*/) {
    stopTouches();
}

}  // namespace tactora
