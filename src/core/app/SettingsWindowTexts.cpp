#include "core/app/SettingsWindowTexts.h"

#include "core/actions/ExtraActionMenu.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"

namespace tactora {

SettingsWindowTexts settingsWindowTexts() {
    return {
        // Not localised: the product's name and version.
        .title = "Tactora 0.2.1 · Magic Mouse",
        .hero = L("hero"),
        .intro = L("intro"),
        .allowAccessibility = L("permission.access"),
        .allowInputMonitoring = L("permission.monitor"),
        .reconnect = L("reconnect"),
        .profileLabel = L("profile.label"),
        .newProfile = L("profile.new"),
        .renameProfile = L("profile.rename"),
        .duplicateProfile = L("profile.duplicate"),
        .profileActions = L("profile.actions"),
        .profileApplications = L("profile.applications"),
        .deleteProfile = L("profile.delete"),
        .importProfiles = L("import.menu"),
        .exportProfiles = L("export.menu"),
        .enableSwitch = L("enable"),
        .gestureRows = gestureRows(),
        .actionNames = choices(),
        .extraActionGroups = extraActionMenu(),
        .recordButton = L("record.button"),
        .recordHint = L("record.hint"),
        .testDesktop = L("test.desktop"),
        .moreGestures = L("more.button"),
        .footer = L("footer"),
        .keepGesturesOn = L("keep.enable"),
        .openAtLogin = L("login.open"),
        .resetPermissions = L("permission.reset"),
        .openLoginItems = L("login.settings"),
    };
}

}  // namespace tactora
