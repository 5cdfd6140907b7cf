#pragma once

#include <vector>

#include "core/platform/MenuEntry.h"

namespace tactora {

// The application menu's items: open the settings, quit (⌘Q). Texts localised; main thread.
std::vector<MenuEntry> mainMenuItems();

// The status item's menu: open the settings, pause, record touches (which reads "Stop
// Recording" while a recording is under way), a separator, exit (⌘Q).
std::vector<MenuEntry> statusMenuItems(bool recordingTouches);

}  // namespace tactora
