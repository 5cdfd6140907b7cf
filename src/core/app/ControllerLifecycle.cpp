#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "core/app/AppMenus.h"
#include "core/app/Controller.h"
#include "core/app/SettingsWindowTexts.h"
#include "core/localization/Localizer.h"

namespace tactora {

void Controller::applicationDidFinishLaunching() {
    if (activateOtherInstance()) {
        services_.workspace.terminate();
        return;
    }
    services_.shell.setRegularActivationPolicy();
    services_.shell.applyApplicationIcon();
    services_.shell.buildMainMenu(mainMenuItems());
    buildWindow();
    createStatusItem();
    updateMenuIcon();
    services_.shell.buildStatusMenu(statusMenuItems(trace_.isRecording()));
    reconnect();
    startRefreshTimer();
    observeWake();
    show();
}

void Controller::applicationDidBecomeActive() {
    noteTrace(services_.clock.uptime(), TraceActive{true});
    dropPendingWork();
}

void Controller::applicationDidResignActive() {
    noteTrace(services_.clock.uptime(), TraceActive{false});
    dropPendingWork();
}

void Controller::applicationWillTerminate() {
    stopTrace();
    pause();
    services_.sensor.stop();
}

void Controller::show() {
    services_.shell.showWindow();
    services_.workspace.activate();
}

void Controller::quit() {
    services_.workspace.terminate();
}

void Controller::pause() {
    cancelPendingActions();
    services_.view.setEnabledOn(false);
    toggle();
}

void Controller::toggle() {
    applySwitch();
    noteGestures();
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
    if (ready_ && services_.permissions.accessibilityTrusted() &&
        services_.permissions.inputMonitoringGranted() && installTap()) {
        return;
    }
    services_.view.setEnabledOn(false);
    services_.view.setStatusText(L("error.enable"));
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
    return true;
}

void Controller::buildWindow() {
    services_.shell.buildWindow(settingsWindowTexts());
    windowBuilt_ = true;
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

void Controller::dropPendingWork() {
    cancelPendingActions();
    releasePresses();
    gesture_.reset();
}

}  // namespace tactora
