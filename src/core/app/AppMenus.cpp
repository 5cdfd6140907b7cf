#include "core/app/AppMenus.h"

#include "core/localization/Localizer.h"

namespace tactora {

std::vector<MenuEntry> mainMenuItems() {
    return {
        {L("menu.open"), MenuCommand::show, ""},
        {L("menu.quit"), MenuCommand::quit, "q"},
    };
}

std::vector<MenuEntry> statusMenuItems(bool menuBarFeedback, bool recordingTouches) {
    return {
        {L("menu.open"), MenuCommand::show, ""},
        {L("menu.pause"), MenuCommand::pause, ""},
        {L("menu.feedback"), MenuCommand::toggleMenuBarFeedback, "", menuBarFeedback},
        {L(recordingTouches ? "menu.trace.stop" : "menu.trace.start"), MenuCommand::recordTouches,
         ""},
        {"", MenuCommand::separator, ""},
        {L("menu.exit"), MenuCommand::quit, "q"},
    };
}

std::string editMenuTitle() {
    return L("menu.edit");
}

std::vector<MenuEntry> editMenuItems() {
    return {
        {L("menu.undo"), MenuCommand::undo, "z"},
        {L("menu.redo"), MenuCommand::redo, "Z"},
        {"", MenuCommand::separator, ""},
        {L("menu.cut"), MenuCommand::cut, "x"},
        {L("menu.copy"), MenuCommand::copy, "c"},
        {L("menu.paste"), MenuCommand::paste, "v"},
        {L("menu.select_all"), MenuCommand::selectAll, "a"},
    };
}

std::string windowMenuTitle() {
    return L("menu.window");
}

std::vector<MenuEntry> windowMenuItems() {
    return {
        {L("menu.close_window"), MenuCommand::closeWindow, "w"},
    };
}

}  // namespace tactora
