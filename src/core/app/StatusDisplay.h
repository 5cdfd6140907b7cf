#pragma once

#include <string>

#include "core/platform/MenuEntry.h"

namespace tactora {

// What the parts beside the controller add to the status display it draws: a note on the live
// line, the status item's title, and entries of the status menu. Main thread only.
class StatusDisplay {
  public:
    virtual ~StatusDisplay() = default;

    // Appended to the live line after " · " from the next refresh on; empty for none.
    virtual void setLiveNote(std::string note) = 0;
    // Appended to the permission line after " · " as it is written; empty for none.
    virtual void setPermissionNote(std::string note) = 0;
    // The status item's title beside its symbol, drawn at once; empty for none.
    virtual void setStatusItemTitle(std::string title) = 0;
    // Puts `entry` in the status menu between the pause item and the separator, in place of the
    // entry with the same command or else after the others, and rebuilds the menu.
    virtual void setStatusMenuEntry(MenuEntry entry) = 0;
    // Rewrites the permission line and the live line, then the status item.
    virtual void refresh() = 0;
};

}  // namespace tactora
