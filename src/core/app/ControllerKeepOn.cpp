#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/app/Controller.h"
#include "core/keepon/DeviceNotices.h"
#include "core/localization/Localizer.h"
#include "core/support/ScopedCount.h"

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
// A reset takes well under a second; one that hangs is stopped after this many seconds.
constexpr double resetTimeLimit = 5;

}  // namespace

void Controller::toggleKeepOn() {
    if (keepOn_.setEnabled(services_.view.isKeepOnChecked(), services_.view.isEnabledOn())) {
        services_.view.setStatusText(sensorText_);
    }
    armIfWanted(true);
}

void Controller::deviceArrived(std::uint64_t /*device*/) {
    if (!arrivalReconnects(services_.sensor.connectedDevice())) {
        return;
    }
    keepOn_.deviceArrived();
    scheduleDeviceReconnect();
}

void Controller::deviceLeft(std::uint64_t device) {
    if (departureReconnects(device, services_.sensor.connectedDevice())) {
        scheduleDeviceReconnect();
    }
}

void Controller::toggleLoginItem() {
    const bool wanted = services_.view.isLoginItemChecked();
    const std::int64_t code =
        wanted ? services_.loginItem.registerItem() : services_.loginItem.unregisterItem();
    if (code != 0) {
        services_.view.setStatusText(L("login.failed", code));
    }
    refreshLoginItem();
}

void Controller::openLoginItems() {
    services_.loginItem.openLoginItemsSettings();
}

void Controller::resetPermissions() {
    const std::optional<std::string> bundleID = services_.resetTool.bundleIdentifier();
    if (!bundleID) {
        services_.view.setStatusText(L("reset.failed", std::int64_t{-1}));
        return;
    }
    // Accessibility is about to go away: nothing may be held or rewritten when it does. The
    // program's pause keeps the user's wish, so keeping gestures on brings them back once
    // both permissions are granted again.
    {
        const ScopedCount program(programActions_);
        pause();
    }
    services_.view.setStatusText(L("reset.running"));
    resetNextPermission(0, *bundleID);
}

// Runs the tool for resetServices[index], then for the next one, each off the main thread.
void Controller::resetNextPermission(std::size_t index, const std::string& bundleID) {
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
void Controller::permissionsReset() {
    permissionMemory_.forget();
    services_.view.setStatusText(L("reset.done"));
    if (!services_.permissions.accessibilityTrusted()) {
        access();
    } else if (!services_.permissions.inputMonitoringGranted()) {
        monitor();
    }
    refresh();
}

// After every reconnect, which always ends paused: a wake that did not find the mouse tries
// again, and gestures the user wants come back on.
void Controller::afterReconnect() {
    if (ready_) {
        keepOn_.sensorConnected();
    } else {
        scheduleWakeRetry();
    }
    armIfWanted(true);
}

// Switches gestures back on through toggle()'s own checks when the user wants them on and
// they can pass; otherwise records what is missing and, when that changed or `announce` asks,
// says it on the status line.
void Controller::armIfWanted(bool announce) {
    if (!keepOn_.shouldArm() || services_.view.isEnabledOn()) {
        return;
    }
    KeepOnWait missing = missingForGestures();
    if (missing == KeepOnWait::nothing) {
        {
            const ScopedCount program(programActions_);
            services_.view.setEnabledOn(true);
            toggle();
        }
        if (services_.view.isEnabledOn()) {
            if (keepOn_.setWaiting(KeepOnWait::nothing) || announce) {
                services_.view.setStatusText(sensorText_);
            }
            updateMenuIcon();
            return;
        }
        missing = KeepOnWait::eventTap;
    }
    if (keepOn_.setWaiting(missing) || announce) {
        showWait(missing, sensorText_);
    }
}

// The user's tick did not take: toggle() has said so; add what gestures wait for.
void Controller::waitAfterFailedTick() {
    KeepOnWait missing = missingForGestures();
    if (missing == KeepOnWait::nothing) {
        missing = KeepOnWait::eventTap;
    }
    keepOn_.setWaiting(missing);
    showWait(missing, L("error.enable"));
}

// The first of toggle()'s checks that fails, in its order, or nothing.
KeepOnWait Controller::missingForGestures() const {
    if (!ready_) {
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

void Controller::showWait(KeepOnWait wait, const std::string& before) {
    if (const char* key = waitKey(wait)) {
        services_.view.setStatusText(before + " · " + L(key));
    }
}

// Permissions are polled by the refresh anyway; only a change can change the outcome, so only
// a change is acted on.
void Controller::keepOnAtRefresh(bool accessibility, bool inputMonitoring) {
    const std::pair<bool, bool> now{accessibility, inputMonitoring};
    const bool changed = lastPermissions_ != now;
    lastPermissions_ = now;
    if (!changed || programActions_ > 0 || !keepOn_.enabled() || !keepOn_.wanted()) {
        return;
    }
    if (services_.view.isEnabledOn()) {
        if (accessibility && inputMonitoring) {
            return;
        }
        // A permission withdrawn under running gestures: pause until it is back.
        {
            const ScopedCount program(programActions_);
            pause();
        }
        armIfWanted(true);
        return;
    }
    armIfWanted(false);
}

void Controller::coolDown(double seconds) {
    services_.view.setStatusText(L("error.paused") + " · " +
                                 L("keep.cooldown", static_cast<std::int64_t>(seconds)));
    services_.queue.after(seconds, [weak = weak_from_this(), epoch = keepOn_.epoch()] {
        const auto self = weak.lock();
        if (self && self->keepOn_.coolDownEnded(epoch)) {
            self->armIfWanted(true);
        }
    });
}

void Controller::scheduleWakeRetry() {
    const std::optional<double> delay = keepOn_.nextWakeRetry();
    if (!delay) {
        return;
    }
    services_.queue.after(*delay, [weak = weak_from_this(), epoch = keepOn_.wakeEpoch()] {
        const auto self = weak.lock();
        if (self && self->keepOn_.wakeRetryCurrent(epoch) && !self->ready_) {
            self->reconnect();
        }
    });
}

void Controller::scheduleDeviceReconnect() {
    if (deviceReconnectPending_) {
        return;
    }
    deviceReconnectPending_ = true;
    services_.queue.after(deviceSettle, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->deviceReconnectPending_ = false;
            self->reconnect();
        }
    });
}

void Controller::watchDevices() {
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

// The activity is held exactly while the switch is on.
void Controller::syncActivity() {
    const bool on = services_.view.isEnabledOn();
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

void Controller::refreshLoginItem() {
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
