#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "core/app/AppMenus.h"
#include "core/app/Controller.h"
#include "core/app/SettingsWindowTexts.h"
#include "core/localization/Localizer.h"
#include "core/support/ScopedCount.h"

namespace tactora {

void Controller::applicationDidFinishLaunching() {
    if (activateOtherInstance()) {
        services_.workspace.terminate();
        return;
    }
    launch_ = LaunchPresence(services_.shell.launchOrigin());
    if (launch_.showsDockIcon()) {
        services_.shell.setRegularActivationPolicy();
    } else {
        services_.shell.setAccessoryActivationPolicy();
    }
    services_.shell.applyApplicationIcon();
    services_.shell.buildMainMenu(mainMenuItems());
    services_.shell.addMainMenu(editMenuTitle(), editMenuItems());
    services_.shell.addMainMenu(windowMenuTitle(), windowMenuItems());
    buildWindow();
    createStatusItem();
    updateMenuIcon();
    showStatusMenu();
    reconnect();
    // After the reconnect's own line, so that a login item waiting for approval is said.
    refreshLoginItem();
    startRefreshTimer();
    observeWake();
    observeShowRequests();
    watchDevices();
    observers_.launched(services_.clock.uptime());
    if (launch_.showsWindowAtLaunch()) {
        show();
    }
}

void Controller::applicationDidBecomeActive() {
    observers_.activeChanged({.active = true, .time = services_.clock.uptime()});
    dropPendingWork();
    refreshLoginItem();
}

void Controller::applicationDidResignActive() {
    observers_.activeChanged({.active = false, .time = services_.clock.uptime()});
    dropPendingWork();
}

void Controller::applicationWillTerminate() {
    observers_.terminating(services_.clock.uptime());
    // The program's pause: the user's choice is kept for the next launch.
    const ScopedCount program(programActions_);
    pause();
    services_.sensor.stop();
}

bool Controller::applicationShouldHandleReopen(bool hasVisibleWindows) {
    if (hasVisibleWindows) {
        return true;
    }
    show();
    return false;
}

void Controller::show() {
    if (launch_.windowOpened()) {
        services_.shell.setRegularActivationPolicy();
    }
    refreshLoginItem();
    services_.shell.showWindow();
    services_.workspace.activate();
}

void Controller::quit() {
    services_.workspace.terminate();
}

void Controller::pause() {
    if (programActions_ == 0 && keepOn_.userChose(false)) {
        // "Gestures come back on by themselves once …" no longer holds.
        services_.view.setStatusText(sensorText_);
    }
    cancelPendingActions();
    services_.view.setEnabledOn(false);
    const ScopedCount inPause(pausing_);
    toggle();
}

void Controller::toggle() {
    const bool byUser = programActions_ == 0 && pausing_ == 0;
    if (byUser && keepOn_.userChose(services_.view.isEnabledOn())) {
        services_.view.setStatusText(sensorText_);
    }
    applySwitch(byUser);
    // A pause from the menu is the user's too.
    observers_.switchChanged({.on = services_.view.isEnabledOn(),
                              .byUser = programActions_ == 0,
                              .time = services_.clock.uptime()});
}

// Applies the switch's state; `byUser` when the user ticked it, not the program.
void Controller::applySwitch(bool byUser) {
    cancelPendingActions();
    if (!services_.view.isEnabledOn()) {
        releasePresses();
        if (services_.tap.exists()) {
            services_.tap.setEnabled(false);
        }
        syncActivity();
        return;
    }
    // Tested in this order so that no tap is attempted without both permissions.
    if (ready_ && services_.permissions.accessibilityTrusted() &&
        services_.permissions.inputMonitoringGranted() && installTap()) {
        syncActivity();
        return;
    }
    services_.view.setEnabledOn(false);
    services_.view.setStatusText(L("error.enable"));
    syncActivity();
    if (byUser && keepOn_.shouldArm()) {
        waitAfterFailedTick();
    }
}

void Controller::access() {
    services_.permissions.requestAccessibility();
    services_.workspace.openURL(std::string(accessibilitySettings));
}

void Controller::monitor() {
    services_.permissions.requestInputMonitoring();
    services_.workspace.openURL(std::string(inputMonitoringSettings));
}

// When another copy of the application runs, brings the first one the system lists forward.
bool Controller::activateOtherInstance() {
    const std::int32_t own = services_.workspace.ownProcessID();
    const std::vector<std::int32_t> instances = services_.workspace.instanceProcessIDs();
    const auto other =
        std::ranges::find_if(instances, [own](std::int32_t processID) { return processID != own; });
    if (other == instances.end()) {
        return false;
    }
    services_.workspace.activateApplication(*other);
    // From macOS 14 on the system may not hand the first copy the activation; it can still
    // bring its own window forward when asked.
    services_.workspace.requestShow(*other);
    return true;
}

void Controller::buildWindow() {
    services_.shell.buildWindow(settingsWindowTexts());
    windowBuilt_ = true;
    services_.view.setKeepOnChecked(keepOn_.enabled());
    refreshProfileUI();
}

void Controller::createStatusItem() {
    services_.shell.createStatusItem();
    statusItemCreated_ = true;
}

void Controller::startRefreshTimer() {
    services_.queue.every(refreshInterval, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->refresh();
        }
    });
}

void Controller::observeWake() {
    services_.workspace.observeWake([weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->woke();
        }
    });
}

void Controller::observeShowRequests() {
    services_.workspace.observeShowRequests([weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->show();
        }
    });
}

void Controller::dropPendingWork() {
    cancelPendingActions();
    releasePresses();
    gesture_.reset();
}

}  // namespace tactora
