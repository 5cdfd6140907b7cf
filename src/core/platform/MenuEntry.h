#pragma once

#include <string>

namespace tactora {

// What choosing a menu item does; the shell sends it to the controller operation of the same
// name (show(), pause(), quit(), recordTouches()).
enum class MenuCommand {
    show,
    pause,
    quit,
    recordTouches,
    separator,  // not an item: a separator line
};

// One item of a menu that the controller describes and the shell builds. The controller is
// every item's target.
struct MenuEntry {
    std::string title;
    MenuCommand command = MenuCommand::separator;
    std::string keyEquivalent;  // empty for none

    bool operator==(const MenuEntry&) const = default;
};

}  // namespace tactora
