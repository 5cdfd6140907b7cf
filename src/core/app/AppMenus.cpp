#include "core/app/AppMenus.h"

#include "core/localization/Localizer.h"

namespace tactora {

std::vector<MenuEntry> mainMenuItems() {
    return {
        {L("menu.open"), MenuCommand::show, ""},
        {L("menu.quit"), MenuCommand::quit, "q"},
    };
}

std::vector<MenuEntry> statusMenuItems(bool recordingTouches) {
    return {
        {L("menu.open"), MenuCommand::show, ""},
        {L("menu.pause"), MenuCommand::pause, ""},
        {L(recordingTouches ? "menu.trace.stop" : "menu.trace.start"), MenuCommand::recordTouches,
         ""},
        {"", MenuCommand::separator, ""},
        {L("menu.exit"), MenuCommand::quit, "q"},
    };
}

}  // namespace tactora
