#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/fakes/CallLog.h"
#include "core/platform/SettingsView.h"

namespace tactora::testing {

// The controls as the controller left them. The test plays the user by setting `enabled`,
// `actionChoice` and `profileChoice` before forwarding the control's action.
class FakeSettingsView final : public SettingsView {
  public:
    explicit FakeSettingsView(CallLog& log) : log_(log) {}

    void setStatusText(const std::string& text) override { status = text; }
    void setPermissionText(const std::string& text) override { permission = text; }
    void setLiveText(const std::string& text) override { live = text; }

    bool isEnabledOn() const override { return enabled; }
    void setEnabledOn(bool on) override { enabled = on; }

    bool isKeepOnChecked() const override { return keepOn; }
    void setKeepOnChecked(bool on) override { keepOn = on; }
    bool isLoginItemChecked() const override { return loginItem; }
    void setLoginItemChecked(bool on) override { loginItem = on; }
    void setResetPermissionsVisible(bool visible) override { resetVisible = visible; }
    void setLoginItemsSettingsVisible(bool visible) override { loginItemsVisible = visible; }

    void setProfileItems(const std::vector<ProfileMenuItem>& items) override {
        profileItems = items;
        selectedProfile.reset();
    }
    void selectProfileItem(std::size_t index) override { selectedProfile = index; }
    std::optional<std::string> selectedProfileID() const override {
        if (profileChoice) {
            return profileChoice;
        }
        if (selectedProfile && *selectedProfile < profileItems.size()) {
            return profileItems[*selectedProfile].representedID;
        }
        return std::nullopt;
    }

    void setDeleteProfileEnabled(bool on) override { deleteEnabled = on; }
    void showApplications(const ApplicationsSheet& sheet) override {
        log_.add("view.showApplications");
        applications = sheet;
    }

    void selectAction(std::size_t slot, std::int64_t action) override {
        shownActions.at(slot) = action;
        actionChoice.at(slot) = action;
    }
    std::int64_t selectedAction(std::size_t slot) const override { return actionChoice.at(slot); }
    void setRecordButton(std::size_t slot, const RecordButtonState& state) override {
        recordButtons.at(slot) = state;
    }

    void setStatusItem(const StatusItemAppearance& appearance) override {
        log_.add("view.setStatusItem");
        statusItem = appearance;
    }

    std::string status;
    std::string permission;
    std::string live;
    bool enabled = false;
    bool keepOn = false;
    bool loginItem = false;
    bool resetVisible = false;
    bool loginItemsVisible = false;
    std::vector<ProfileMenuItem> profileItems;
    std::optional<std::size_t> selectedProfile;
    std::optional<std::string> profileChoice;  // the user's pick, overriding the selection
    std::optional<bool> deleteEnabled;
    std::optional<ApplicationsSheet> applications;
    std::array<std::optional<std::int64_t>, 8> shownActions{};
    std::array<std::int64_t, 8> actionChoice{};
    std::array<std::optional<RecordButtonState>, 8> recordButtons{};
    std::optional<StatusItemAppearance> statusItem;

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
