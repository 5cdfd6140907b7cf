#include "core/app/AppMenus.h"

#include "core/localization/Localizer.h"

namespace tactora {

std::vector<MenuEntry> mainMenuItems() {
    return {
        {L("menu.open"), MenuCommand::show, ""},
        {L("menu.quit"), MenuCommand::quit, "q"},
    };
}

std::vector<MenuEntry> statusMenuItems(bool menuBarFeedback) {
    return {
        {L("menu.open"), MenuCommand::show, ""},
        {L("menu.pause"), MenuCommand::pause, ""},
        {L("menu.feedback"), MenuCommand::toggleMenuBarFeedback, "", menuBarFeedback},
        {"", MenuCommand::separator, ""},
        {L("menu.exit"), MenuCommand::quit, "q"},
    };
}

}  // namespace tactora
