#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/app/StatusDisplay.h"

namespace tactora::testing {

// A status display that keeps what it was given.
class RecordedStatusDisplay final : public StatusDisplay {
  public:
    void setLiveNote(std::string note) override { liveNote = std::move(note); }
    void setPermissionNote(std::string note) override { permissionNote = std::move(note); }
    void setStatusItemTitle(std::string newTitle) override { title = std::move(newTitle); }
    void setStatusMenuEntry(MenuEntry entry) override { entries.push_back(std::move(entry)); }
    void refresh() override { ++refreshes; }

    std::string liveNote;
    std::string permissionNote;
    std::string title = "(never drawn)";
    std::vector<MenuEntry> entries;
    int refreshes = 0;
};

}  // namespace tactora::testing
