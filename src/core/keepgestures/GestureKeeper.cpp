#include "core/keepgestures/GestureKeeper.h"

#include <array>
#include <utility>

#include "core/keepon/DeviceNotices.h"
#include "core/localization/Localizer.h"

namespace tactora {

namespace {

const char* waitKey(KeepOnWait wait) {
    switch (wait) {
        case KeepOnWait::sensor:
            return "keep.wait.sensor";
        case KeepOnWait::accessibility:
            return "keep.wait.accessibility";
        case KeepOnWait::inputMonitoring:
            return "keep.wait.monitoring";
        case KeepOnWait::eventTap:
            return "keep.wait.tap";
        case KeepOnWait::nothing:
        case KeepOnWait::coolDown:
        case KeepOnWait::stopped:
            break;
    }
    return nullptr;
}

// The services tccutil knows the two permissions by.
constexpr std::array<const char*, 2> resetServices{"Accessibility", "ListenEvent"};

}  // namespace

std::shared_ptr<GestureKeeper> GestureKeeper::create(Services services, GestureSwitch& gestures,
                                                     StatusDisplay& display) {
    return std::make_shared<GestureKeeper>(Passkey{}, std::move(services), gestures, display);
}

GestureKeeper::GestureKeeper(Passkey /*unused*/, Services services, GestureSwitch& gestures,
                             StatusDisplay& display)
    : services_(std::move(services)),
      gestures_(gestures),
      display_(display),
      keepOn_(services_.defaults),
      permissionMemory_(services_.defaults) {}

void GestureKeeper::toggleKeepOn() {
    if (keepOn_.setEnabled(services_.view.isKeepOnChecked(), services_.view.isEnabledOn())) {
        services_.view.setStatusText(gestures_.sensorText());
    }
    armIfWanted(true);
}

void GestureKeeper::deviceArrived(std::uint64_t /*device*/) {
    // Beside other devices the sensor may already have followed this mouse when the notice
    // comes, so every notice is followed.
    if (followsBesideOthers()) {
        scheduleDeviceReconnect(false);
        return;
    }
    if (!arrivalReconnects(mouse_)) {
        return;
    }
    keepOn_.deviceArrived();
    scheduleDeviceReconnect(true);
}

void GestureKeeper::deviceLeft(std::uint64_t device) {
    const bool reconnects = departureReconnects(device, mouse_);
    if (reconnects || followsBesideOthers()) {
        scheduleDeviceReconnect(reconnects);
    }
}

void GestureKeeper::toggleLoginItem() {
    const bool wanted = services_.view.isLoginItemChecked();
    const std::int64_t code =
        wanted ? services_.loginItem.registerItem() : services_.loginItem.unregisterItem();
    if (code != 0) {
        services_.view.setStatusText(L("login.failed", code));
    }
    refreshLoginItem();
}

void GestureKeeper::openLoginItems() {
    services_.loginItem.openLoginItemsSettings();
}

void GestureKeeper::resetPermissions() {
    const std::optional<std::string> bundleID = services_.resetTool.bundleIdentifier();
    if (!bundleID) {
        services_.view.setStatusText(L("reset.failed", std::int64_t{-1}));
        return;
    }
    // Accessibility is about to go away: nothing may be held or rewritten when it does. The
    // program's pause keeps the user's wish, so keeping gestures on brings them back once
    // both permissions are granted again.
    gestures_.pauseAsProgram();
    services_.view.setStatusText(L("reset.running"));
    resetNextPermission(0, *bundleID);
}

// Runs the tool for resetServices[index], then for the next one, each off the main thread.
void GestureKeeper::resetNextPermission(std::size_t index, const std::string& bundleID) {
    if (index == resetServices.size()) {
        permissionsReset();
        return;
    }
    services_.resetTool.run({"reset", resetServices.at(index), bundleID}, resetTimeLimit,
                            [weak = weak_from_this(), index, bundleID](ToolOutcome outcome) {
                                const auto self = weak.lock();
                                if (!self) {
                                    return;
                                }
                                if (outcome.timedOut) {
                                    self->services_.view.setStatusText(L("reset.timeout"));
                                } else if (outcome.exitStatus != 0) {
                                    self->services_.view.setStatusText(
                                        L("reset.failed", std::int64_t{outcome.exitStatus}));
                                } else {
                                    self->resetNextPermission(index + 1, bundleID);
                                }
                            });
}

// Both were reset: asks for the first one missing only, so that one prompt and one pane of
// System Settings come up; the other is asked for by its own button.
void GestureKeeper::permissionsReset() {
    permissionMemory_.forget();
    services_.view.setStatusText(L("reset.done"));
    if (!services_.permissions.accessibilityTrusted()) {
        gestures_.access();
    } else if (!services_.permissions.inputMonitoringGranted()) {
        gestures_.monitor();
    }
    display_.refresh();
}

void GestureKeeper::switchChosen(const SwitchNote& note) {
    if (keepOn_.userChose(note.on)) {
        // "Gestures come back on by themselves once …" no longer holds.
        services_.view.setStatusText(gestures_.sensorText());
    }
    tickPending_ = note.on;
}

void GestureKeeper::switchChanged(const SwitchNote& note) {
    // The activity is held exactly while the switch is on.
    syncActivity(note.on);
    const bool tickFailed = tickPending_ && !note.on;
    tickPending_ = false;
    if (tickFailed && keepOn_.shouldArm()) {
        waitAfterFailedTick();
    }
    if (!note.tapDisabled || !keepOn_.enabled() || !keepOn_.wanted()) {
        return;
    }
    if (const std::optional<double> seconds = keepOn_.tapDisabled(note.time)) {
        coolDown(*seconds);
    }
}

void GestureKeeper::activeChanged(const ActiveNote& note) {
    if (note.active) {
        refreshLoginItem();
    }
}

void GestureKeeper::launched(double /*time*/) {
    services_.view.setKeepOnChecked(keepOn_.enabled());
    refreshLoginItem();
    services_.devices.watch(
        [weak = weak_from_this()](std::uint64_t device) {
            if (const auto self = weak.lock()) {
                self->deviceArrived(device);
            }
        },
        [weak = weak_from_this()](std::uint64_t device) {
            if (const auto self = weak.lock()) {
                self->deviceLeft(device);
            }
        });
}

void GestureKeeper::windowShown(const MomentNote& /*note*/) {
    refreshLoginItem();
}

void GestureKeeper::woke(const MomentNote& /*note*/) {
    keepOn_.woke();
}

// After every reconnect, which always ends paused: a wake that did not find the mouse tries
// again, and gestures the user wants come back on.
void GestureKeeper::reconnected(const ReconnectNote& note) {
    mouse_ = services_.sensor.connectedDevice();
    if (note.ready) {
        keepOn_.sensorConnected();
    } else {
        scheduleWakeRetry();
    }
    armIfWanted(true);
}

void GestureKeeper::permissionsPolled(const PermissionsNote& note) {
    polled_ = {note.accessibility, note.inputMonitoring};
    permissionMemory_.observe(note.accessibility, note.inputMonitoring);
    const bool stale = permissionMemory_.accessibilityStale(note.accessibility) ||
                       permissionMemory_.inputMonitoringStale(note.inputMonitoring);
    display_.setPermissionNote(stale ? L("permission.stale") : std::string());
    // A tap the system refuses although both are granted is the other face of a stale grant.
    services_.view.setResetPermissionsVisible(stale || keepOn_.waiting() == KeepOnWait::eventTap);
}

// Permissions are polled by the refresh anyway; only a change can change the outcome, so only
// a change is acted on.
void GestureKeeper::refreshed(double /*time*/) {
    const bool changed = lastPermissions_ != polled_;
    lastPermissions_ = polled_;
    if (!changed || gestures_.programActing() || !keepOn_.enabled() || !keepOn_.wanted()) {
        return;
    }
    if (services_.view.isEnabledOn()) {
        if (polled_.first && polled_.second) {
            return;
        }
        // A permission withdrawn under running gestures: pause until it is back.
        gestures_.pauseAsProgram();
        armIfWanted(true);
        return;
    }
    armIfWanted(false);
}

// Switches gestures back on through the switch's own checks when the user wants them on and
// they can pass; otherwise records what is missing and, when that changed or `announce` asks,
// says it on the status line.
void GestureKeeper::armIfWanted(bool announce) {
    if (!keepOn_.shouldArm() || services_.view.isEnabledOn()) {
        return;
    }
    KeepOnWait missing = missingForGestures();
    if (missing == KeepOnWait::nothing) {
        if (gestures_.switchOnAsProgram()) {
            if (keepOn_.setWaiting(KeepOnWait::nothing) || announce) {
                services_.view.setStatusText(gestures_.sensorText());
            }
            return;
        }
        missing = KeepOnWait::eventTap;
    }
    if (keepOn_.setWaiting(missing) || announce) {
        showWait(missing, gestures_.sensorText());
    }
}

// The user's tick did not take: the switch has said so; add what gestures wait for.
void GestureKeeper::waitAfterFailedTick() {
    KeepOnWait missing = missingForGestures();
    if (missing == KeepOnWait::nothing) {
        missing = KeepOnWait::eventTap;
    }
    keepOn_.setWaiting(missing);
    showWait(missing, L("error.enable"));
}

// The first of the switch's checks that fails, in its order, or nothing.
KeepOnWait GestureKeeper::missingForGestures() const {
    if (!gestures_.sensorReady()) {
        return KeepOnWait::sensor;
    }
    if (!services_.permissions.accessibilityTrusted()) {
        return KeepOnWait::accessibility;
    }
    if (!services_.permissions.inputMonitoringGranted()) {
        return KeepOnWait::inputMonitoring;
    }
    return KeepOnWait::nothing;
}

void GestureKeeper::showWait(KeepOnWait wait, const std::string& before) {
    if (const char* key = waitKey(wait)) {
        services_.view.setStatusText(before + " · " + L(key));
    }
}

void GestureKeeper::coolDown(double seconds) {
    services_.view.setStatusText(L("error.paused") + " · " +
                                 L("keep.cooldown", static_cast<std::int64_t>(seconds)));
    services_.queue.after(seconds, [weak = weak_from_this(), epoch = keepOn_.epoch()] {
        const auto self = weak.lock();
        if (self && self->keepOn_.coolDownEnded(epoch)) {
            self->armIfWanted(true);
        }
    });
}

void GestureKeeper::scheduleWakeRetry() {
    const std::optional<double> delay = keepOn_.nextWakeRetry();
    if (!delay) {
        return;
    }
    services_.queue.after(*delay, [weak = weak_from_this(), epoch = keepOn_.wakeEpoch()] {
        const auto self = weak.lock();
        if (self && self->keepOn_.wakeRetryCurrent(epoch) && !self->gestures_.sensorReady()) {
            self->gestures_.reconnect();
        }
    });
}

void GestureKeeper::scheduleDeviceReconnect(bool reconnect) {
    deviceReconnectWanted_ = deviceReconnectWanted_ || reconnect;
    if (deviceReconnectPending_) {
        return;
    }
    deviceReconnectPending_ = true;
    services_.queue.after(deviceSettle, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->deviceReconnectPending_ = false;
            const bool wanted = std::exchange(self->deviceReconnectWanted_, false);
            // Decided when due: the other devices may have come or gone meanwhile.
            if (self->followsBesideOthers()) {
                self->services_.otherSurfaces->followDevices();
                self->gestures_.sensorFollowed();
                self->mouse_ = self->services_.sensor.connectedDevice();
            } else if (wanted) {
                self->gestures_.reconnect();
            }
        }
    });
}

bool GestureKeeper::followsBesideOthers() const {
    return services_.otherSurfaces != nullptr && services_.otherSurfaces->othersInUse();
}

void GestureKeeper::syncActivity(bool on) {
    if (on == activityHeld_) {
        return;
    }
    activityHeld_ = on;
    if (on) {
        services_.activity.begin();
    } else {
        services_.activity.end();
    }
}

void GestureKeeper::refreshLoginItem() {
    const LoginItemStatus status = services_.loginItem.status();
    const bool needsApproval = status == LoginItemStatus::requiresApproval;
    services_.view.setLoginItemChecked(status == LoginItemStatus::enabled || needsApproval);
    services_.view.setLoginItemsSettingsVisible(needsApproval);
    if (status != loginStatus_) {
        loginStatus_ = status;
        if (needsApproval) {
            services_.view.setStatusText(L("login.approval"));
        }
    }
}

}  // namespace tactora
