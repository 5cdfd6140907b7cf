#include "core/app/AppMenus.h"

#include <algorithm>

#include "core/localization/Localizer.h"

namespace tactora {

std::vector<MenuEntry> mainMenuItems() {
    return {
        {L("menu.open"), MenuCommand::show, ""},
        {L("menu.quit"), MenuCommand::quit, "q"},
    };
}

std::vector<MenuEntry> statusMenuItems(std::span<const MenuEntry> extras) {
    std::vector<MenuEntry> items{
        {L("menu.open"), MenuCommand::show, ""},
        {L("menu.pause"), MenuCommand::pause, ""},
    };
    std::vector<MenuEntry> added(extras.begin(), extras.end());
    std::ranges::stable_sort(added, {}, &MenuEntry::command);
    items.insert(items.end(), added.begin(), added.end());
    items.push_back({"", MenuCommand::separator, ""});
    items.push_back({L("menu.exit"), MenuCommand::quit, "q"});
    return items;
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
