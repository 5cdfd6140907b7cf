#include <utility>

#include "core/app/Controller.h"
#include "core/localization/Localizer.h"

namespace tactora {

static_assert(TouchSurface::contactLifetime == Controller::liveContact,
              "The live view and the live line count fingers over the same time");

namespace {

std::string permissionState(bool granted) {
    return granted ? L("ok") : L("pending");
}

}  // namespace

void Controller::refresh() {
    if (trace_.expired(services_.clock.uptime())) {
        stopTrace();
        return;  // stopping refreshes
    }
    const bool accessibility = services_.permissions.accessibilityTrusted();
    const bool inputMonitoring = services_.permissions.inputMonitoringGranted();
    permissionMemory_.observe(accessibility, inputMonitoring);
    services_.view.setPermissionText(permissionLine(accessibility, inputMonitoring));
    const bool fresh = services_.clock.uptime() - lastFrame_ < liveContact;
    const std::int64_t fingers = fresh ? gesture_.count : 0;
    std::string live = L("live", fingers, lastGesture_, lastAction_);
    if (trace_.isRecording()) {
        live += " · " + L("trace.live");
    }
    services_.view.setLiveText(live);
    if (surfaceVisible_) {
        showSurface();
    }
    updateMenuIcon();
    keepOnAtRefresh(accessibility, inputMonitoring);
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
        .title = feedback_.title(services_.clock.uptime()),
    };
    // The refresh timer calls this five times a second; the status bar redraws only on change.
    if (appearance == shownAppearance_) {
        return;
    }
    services_.view.setStatusItem(appearance);
    shownAppearance_ = std::move(appearance);
}

}  // namespace tactora
