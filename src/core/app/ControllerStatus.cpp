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
    permissionMemory_.observe(accessibility, inputMonitoring);
    services_.view.setPermissionText(permissionLine(accessibility, inputMonitoring));
    const bool fresh = services_.clock.uptime() - lastFrame_ < liveContact;
    const std::int64_t fingers = fresh ? gesture_.count : 0;
    std::string live = L("live", fingers, lastGesture_, lastAction_);
    if (!statusExtras_.liveNote.empty()) {
        live += " · " + statusExtras_.liveNote;
    }
    services_.view.setLiveText(live);
    updateMenuIcon();
    keepOnAtRefresh(accessibility, inputMonitoring);
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

std::string Controller::permissionLine(bool accessibility, bool inputMonitoring) {
    std::string line =
        L("permissions", permissionState(accessibility), permissionState(inputMonitoring));
    const bool stale = permissionMemory_.accessibilityStale(accessibility) ||
                       permissionMemory_.inputMonitoringStale(inputMonitoring);
    if (stale) {
        line += " · " + L("permission.stale");
    }
    // A tap the system refuses although both are granted is the other face of a stale grant.
    services_.view.setResetPermissionsVisible(stale || keepOn_.waiting() == KeepOnWait::eventTap);
    return line;
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
