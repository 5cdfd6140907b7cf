#pragma once

#include <optional>

#include "core/actions/SavedShortcut.h"
#include "core/app/ProfileSwitcher.h"
#include "core/platform/Dialogs.h"

namespace tactora {

// Records a shortcut for a row of one of the windows beside the gesture table: runs the
// recording dialog with nothing half seen completing before or after it, and gives the shortcut
// captured when the user saved it, unless another profile became active meanwhile (a shortcut
// belongs to the profile it was recorded for). Main thread only.
std::optional<SavedShortcut> recordShortcutForProfile(ProfileSwitcher& switcher, Dialogs& dialogs);

}  // namespace tactora
