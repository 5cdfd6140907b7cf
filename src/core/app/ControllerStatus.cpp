#include "core/app/Controller.h"
#include "core/localization/Localizer.h"

namespace tactora {

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
    services_.view.setPermissionText(
        L("permissions", permissionState(services_.permissions.accessibilityTrusted()),
          permissionState(services_.permissions.inputMonitoringGranted())));
    const bool fresh = services_.clock.uptime() - lastFrame_ < liveContact;
    const std::int64_t fingers = fresh ? gesture_.count : 0;
    std::string live = L("live", fingers, lastGesture_, lastAction_);
    if (trace_.isRecording()) {
        live += " · " + L("trace.live");
    }
    services_.view.setLiveText(live);
    updateMenuIcon();
}

void Controller::updateMenuIcon() {
    if (!statusItemCreated_) {
        return;
    }
    const bool on = services_.view.isEnabledOn();
    services_.view.setStatusItem({
        .symbolName = on ? "computermouse.fill" : "computermouse",
        .accessibilityDescription = "Tactora",
        .toolTip =
            "Tactora · " + L(on ? "menu.active" : "menu.pause") + " · " + profiles().current().name,
    });
}

}  // namespace tactora
