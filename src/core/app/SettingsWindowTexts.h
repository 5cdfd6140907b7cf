#pragma once

#include <string>
#include <vector>

#include "core/app/GestureRow.h"
#include "core/platform/ActionMenuEntry.h"

namespace tactora {

// Every text of the settings window that stays as built: its title, the fixed lines, the
// labels and button titles, the gesture table's headings and finger labels, and the names in
// the action pop-ups. The lines that follow the program's state (status, permissions, live
// line) and the record buttons' titles are set later by the controller.
struct SettingsWindowTexts {
    std::string title;
    std::string hero;
    std::string intro;
    std::string allowAccessibility;
    std::string allowInputMonitoring;
    std::string reconnect;
    std::string profileLabel;
    std::string newProfile;
    std::string renameProfile;
    std::string duplicateProfile;
    // The profile actions pull-down at the end of the profile row: its accessibility title,
    // then its items (a separator goes between delete and import).
    std::string profileActions;
    std::string profileApplications;
    std::string deleteProfile;
    std::string importProfiles;
    std::string exportProfiles;
    std::string enableSwitch;
    std::vector<GestureRow> gestureRows;
    std::vector<std::string> actionNames;  // catalogue order: an item's index is its action
    // The extra actions after the fifteen, one list per group, each after a separator; an
    // item's tag is its action.
    std::vector<std::vector<ActionMenuEntry>> extraActionGroups;
    std::string recordButton;
    std::string recordHint;
    std::string testDesktop;
    // Beside the test button: opens the More Gestures sheet.
    std::string moreGestures;
    std::string footer;
    // Beside the master switch, and in the permission row.
    std::string keepGesturesOn;
    std::string openAtLogin;
    std::string resetPermissions;
    std::string openLoginItems;

    bool operator==(const SettingsWindowTexts&) const = default;
};

// The texts in the current string table's language; the action names are choices(), so
// initializeGlobals() must have run. Main thread only.
SettingsWindowTexts settingsWindowTexts();

}  // namespace tactora
