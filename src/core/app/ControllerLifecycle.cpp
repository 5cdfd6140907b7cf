#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "core/app/AppMenus.h"
#include "core/app/Controller.h"
#include "core/app/SettingsWindowTexts.h"
#include "core/app/TouchStep.h"
#include "core/localization/Localizer.h"
#include "core/support/ScopedCount.h"

namespace tactora {

namespace {

// When another copy of the application runs, brings the first one the system lists forward.
bool activateOtherInstance(Workspace& workspace) {
    const std::int32_t own = workspace.ownProcessID();
    const std::vector<std::int32_t> instances = workspace.instanceProcessIDs();
    const auto other =
        std::ranges::find_if(instances, [own](std::int32_t processID) { return processID != own; });
    if (other == instances.end()) {
        return false;
    }
    workspace.activateApplication(*other);
    // From macOS 14 on the system may not hand the first copy the activation; it can still
    // bring its own window forward when asked.
    workspace.requestShow(*other);
    return true;
}

}  // namespace

void Controller::applicationDidFinishLaunching() {
    if (activateOtherInstance(services_.workspace)) {
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
    services_.shell.createStatusItem();
    statusItemCreated_ = true;
    updateMenuIcon();
    showStatusMenu();
    reconnect();
    watch();
    observers_.launched(services_.clock.uptime());
    if (launch_.showsWindowAtLaunch()) {
        show();
    }
}

void Controller::applicationDidBecomeActive() {
    observers_.activeChanged({.active = true, .time = services_.clock.uptime()});
    dropPendingWork();
}

void Controller::applicationDidResignActive() {
    observers_.activeChanged({.active = false, .time = services_.clock.uptime()});
    dropPendingWork();
}

void Controller::applicationWillTerminate() {
    observers_.terminating(services_.clock.uptime());
    // The program's pause: the user's choice is kept for the next launch.
    pauseAsProgram();
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
    observers_.windowShown({.time = services_.clock.uptime()});
    services_.shell.showWindow();
    services_.workspace.activate();
}

void Controller::quit() {
    services_.workspace.terminate();
}

void Controller::pause() {
    if (programActions_ == 0) {
        observers_.switchChosen({.on = false, .byUser = true, .time = services_.clock.uptime()});
    }
    cancelPendingActions();
    services_.view.setEnabledOn(false);
    const ScopedCount inPause(pausing_);
    toggle();
}

void Controller::toggle() {
    if (programActions_ == 0 && pausing_ == 0) {
        observers_.switchChosen(
            {.on = services_.view.isEnabledOn(), .byUser = true, .time = services_.clock.uptime()});
    }
    applySwitch();
    // A pause from the menu is the user's too.
    observers_.switchChanged({.on = services_.view.isEnabledOn(),
                              .byUser = programActions_ == 0,
                              .time = services_.clock.uptime()});
}

void Controller::applySwitch() {
    cancelPendingActions();
    if (!services_.view.isEnabledOn()) {
        releasePresses();
        if (services_.tap.exists()) {
            services_.tap.setEnabled(false);
        }
        return;
    }
    // Tested in this order so that no tap is attempted without both permissions.
    if (state_.ready && services_.permissions.accessibilityTrusted() &&
        services_.permissions.inputMonitoringGranted() && installTap()) {
        return;
    }
    services_.view.setEnabledOn(false);
    services_.view.setStatusText(L("error.enable"));
}

void Controller::pauseAsProgram() {
    const ScopedCount program(programActions_);
    pause();
}

bool Controller::switchOnAsProgram() {
    {
        const ScopedCount program(programActions_);
        services_.view.setEnabledOn(true);
        toggle();
    }
    if (!services_.view.isEnabledOn()) {
        return false;
    }
    updateMenuIcon();
    return true;
}

void Controller::access() {
    services_.permissions.requestAccessibility();
    services_.workspace.openURL(std::string(accessibilitySettings));
}

void Controller::monitor() {
    services_.permissions.requestInputMonitoring();
    services_.workspace.openURL(std::string(inputMonitoringSettings));
}

void Controller::buildWindow() {
    services_.shell.buildWindow(settingsWindowTexts());
    windowBuilt_ = true;
    refreshProfileUI();
}

void Controller::watch() {
    services_.queue.every(refreshInterval, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->refresh();
        }
    });
    services_.workspace.observeWake([weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->woke();
        }
    });
    services_.workspace.observeShowRequests([weak = weak_from_this()] {
        if (const auto self = weak.lock()) {
            self->show();
        }
    });
}

void Controller::dropPendingWork() {
    cancelPendingActions();
    releasePresses();
    resetTouch(state_.gesture, services_.judge.get(), services_.extension.get());
}

}  // namespace tactora
