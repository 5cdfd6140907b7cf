#include "core/app/Controller.h"
#include "core/localization/Localizer.h"

namespace tactora {

namespace {

std::string permissionState(bool granted) {
    return granted ? L("ok") : L("pending");
}

}  // namespace

void Controller::refresh() {
    services_.view.setPermissionText(
        L("permissions", permissionState(services_.permissions.accessibilityTrusted()),
          permissionState(services_.permissions.inputMonitoringGranted())));
    const bool fresh = services_.clock.uptime() - lastFrame_ < liveContact;
    const std::int64_t fingers = fresh ? gesture_.count : 0;
    services_.view.setLiveText(L("live", fingers, lastGesture_, lastAction_));
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
            "Tactora · " + L(on ? "menu.active" : "menu.pause") + " · " + activeProfileTitle(),
    });
}

}  // namespace tactora
