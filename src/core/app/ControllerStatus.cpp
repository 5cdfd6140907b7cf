#include <algorithm>
#include <utility>

#include "core/app/AppMenus.h"
#include "core/app/Controller.h"
#include "core/localization/Localizer.h"

namespace tactora {

namespace {

std::string permissionState(bool granted) {
    return granted ? L("ok") : L("pending");
}

}  // namespace

void Controller::refresh() {
    const bool accessibility = services_.permissions.accessibilityTrusted();
    const bool inputMonitoring = services_.permissions.inputMonitoringGranted();
    observers_.permissionsPolled({.accessibility = accessibility,
                                  .inputMonitoring = inputMonitoring,
                                  .time = services_.clock.uptime()});
    std::string permissions =
        L("permissions", permissionState(accessibility), permissionState(inputMonitoring));
    if (!statusExtras_.permissionNote.empty()) {
        permissions += " · " + statusExtras_.permissionNote;
    }
    services_.view.setPermissionText(permissions);
    const bool fresh = services_.clock.uptime() - state_.lastFrame < liveContact;
    const std::int64_t fingers = fresh ? state_.gesture.count : 0;
    std::string live = L("live", fingers, state_.lastGesture, state_.lastAction);
    if (!statusExtras_.liveNote.empty()) {
        live += " · " + statusExtras_.liveNote;
    }
    services_.view.setLiveText(live);
    updateMenuIcon();
    observers_.refreshed(services_.clock.uptime());
}

void Controller::showStatusMenu() {
    if (statusItemCreated_) {
        services_.shell.buildStatusMenu(statusMenuItems(statusExtras_.menuEntries));
    }
}

void Controller::setLiveNote(std::string note) {
    statusExtras_.liveNote = std::move(note);
}

void Controller::setPermissionNote(std::string note) {
    statusExtras_.permissionNote = std::move(note);
}

void Controller::setStatusItemTitle(std::string title) {
    statusExtras_.title = std::move(title);
    updateMenuIcon();
}

void Controller::setStatusMenuEntry(MenuEntry entry) {
    std::vector<MenuEntry>& entries = statusExtras_.menuEntries;
    const auto same = std::ranges::find(entries, entry.command, &MenuEntry::command);
    if (same != entries.end()) {
        *same = std::move(entry);
    } else {
        entries.push_back(std::move(entry));
    }
    showStatusMenu();
}

void Controller::updateMenuIcon() {
    if (!statusItemCreated_) {
        return;
    }
    const bool on = services_.view.isEnabledOn();
    StatusItemAppearance appearance{
        .symbolName = on ? "computermouse.fill" : "computermouse",
        .accessibilityDescription = "Tactora",
        .toolTip =
            "Tactora · " + L(on ? "menu.active" : "menu.pause") + " · " + activeProfileTitle(),
        .title = statusExtras_.title,
    };
    // The refresh timer calls this five times a second; the status bar redraws only on change.
    if (appearance == shownAppearance_) {
        return;
    }
    services_.view.setStatusItem(appearance);
    shownAppearance_ = std::move(appearance);
}

}  // namespace tactora
