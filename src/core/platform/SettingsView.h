#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/ApplicationsSheet.h"
#include "core/platform/ProfileMenuItem.h"
#include "core/platform/RecordButtonState.h"
#include "core/platform/StatusItemAppearance.h"

namespace tactora {

// The controls that the controller keeps up to date: the settings window's lines, master
// switch, profile pop-up and gesture rows, and the status-bar item. The labels, the switch and
// the profile pop-up exist from the moment the controller is made, before the window is built,
// and keep what was set on them; the gesture rows exist once AppShell::buildWindow() has run.
// Main thread only.
class SettingsView {
  public:
    virtual ~SettingsView() = default;

    // The one-line status of the sensor and of the last error.
    virtual void setStatusText(const std::string& text) = 0;
    // The permission line.
    virtual void setPermissionText(const std::string& text) = 0;
    // The live line: fingers, last gesture, last action.
    virtual void setLiveText(const std::string& text) = 0;

    // The master switch (the enable checkbox). Its state is the only record of whether
    // gestures are on; the user's ticking it reaches the controller's toggle().
    virtual bool isEnabledOn() const = 0;
    virtual void setEnabledOn(bool on) = 0;

    // The "Keep gestures on" checkbox; the user's clicking it reaches toggleKeepOn().
    virtual bool isKeepOnChecked() const = 0;
    virtual void setKeepOnChecked(bool on) = 0;
    // The "Open at login" checkbox; the user's clicking it reaches toggleLoginItem().
    virtual bool isLoginItemChecked() const = 0;
    virtual void setLoginItemChecked(bool on) = 0;
    // The permission row's "Reset Permissions…" and "Open Login Items Settings…" buttons,
    // hidden until they are needed.
    virtual void setResetPermissionsVisible(bool visible) = 0;
    virtual void setLoginItemsSettingsVisible(bool visible) = 0;

    // Replaces every item of the profile pop-up.
    virtual void setProfileItems(const std::vector<ProfileMenuItem>& items) = 0;
    // Selects the profile pop-up's item at `index`.
    virtual void selectProfileItem(std::size_t index) = 0;
    // The represented id text of the selected profile item; nothing when no item is selected.
    virtual std::optional<std::string> selectedProfileID() const = 0;
    // Enables the profile actions' delete item; it exists from the start, like the pop-up.
    virtual void setDeleteProfileEnabled(bool enabled) = 0;

    // Shows the applications sheet on the settings window with this content, or, while it is
    // shown, replaces its content. Closing it reaches the frontmost part's closeApplications().
    virtual void showApplications(const ApplicationsSheet& sheet) = 0;

    // Selects the action `action` (one of the fifteen, or an extra action's index after them) in
    // the action pop-up of gesture slot `slot`.
    virtual void selectAction(std::size_t slot, std::int64_t action) = 0;
    // The action selected in the action pop-up of `slot`.
    virtual std::int64_t selectedAction(std::size_t slot) const = 0;
    virtual void setRecordButton(std::size_t slot, const RecordButtonState& state) = 0;

    // Redraws the status-bar item's button; does nothing while there is no status item.
    virtual void setStatusItem(const StatusItemAppearance& appearance) = 0;
};

}  // namespace tactora
