#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/platform/MenuEntry.h"

namespace tactora {

// The application menu's items: open the settings, quit (⌘Q). Texts localised; main thread.
std::vector<MenuEntry> mainMenuItems();

// The status item's menu: open the settings, pause, the `extras` of the parts beside the
// controller (show gestures in the menu bar, record touches) in the order of their commands, a
// separator, exit (⌘Q).
std::vector<MenuEntry> statusMenuItems(std::span<const MenuEntry> extras);

// The menu bar's Edit menu, so that text fields take the usual keys: Undo (⌘Z), Redo (⇧⌘Z), a
// separator, Cut (⌘X), Copy (⌘C), Paste (⌘V), Select All (⌘A).
std::string editMenuTitle();
std::vector<MenuEntry> editMenuItems();

// The menu bar's Window menu: Close Window (⌘W).
std::string windowMenuTitle();
std::vector<MenuEntry> windowMenuItems();

}  // namespace tactora
