#pragma once

#include <string>

namespace tactora {

// What choosing a menu item does. The shell sends show, pause, quit, toggleMenuBarFeedback and
// recordTouches to the controller operation of the same name; the editing and window commands
// go, as the system's standard actions, to whatever control or window has the keyboard focus;
// the application commands (about to showAll, bringAllToFront) are the system's own.
enum class MenuCommand {
    show,
    pause,
    quit,
    toggleMenuBarFeedback,
    recordTouches,
    separator,  // not an item: a separator line
    undo,
    redo,
    cut,
    copy,
    paste,
    selectAll,
    closeWindow,
    about,            // the standard About panel
    hide,             // hide this application
    hideOthers,       // hide every other application
    showAll,          // show every hidden application
    minimize,         // minimise the key window into the Dock
    bringAllToFront,  // bring every window of this application in front
};

// One item of a menu that the controller describes and the shell builds. A key equivalent is
// pressed with Command; an upper-case letter adds Shift, and `withOption` adds Option.
struct MenuEntry {
    std::string title;
    MenuCommand command = MenuCommand::separator;
    std::string keyEquivalent;  // empty for none
    bool checked = false;       // shown with a checkmark
    bool withOption = false;

    bool operator==(const MenuEntry&) const = default;
};

}  // namespace tactora
