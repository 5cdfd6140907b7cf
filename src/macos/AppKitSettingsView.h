#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/SettingsView.h"
#include "core/platform/StatusItemAppearance.h"
#import "macos/TASettingsControls.h"

namespace tactora::macos {

// The settings window's controls and the status item, as the controller sees them.
class AppKitSettingsView final : public SettingsView {
  public:
    explicit AppKitSettingsView(TASettingsControls* controls) : controls_(controls) {}

    void setStatusText(const std::string& text) override;
    void setPermissionText(const std::string& text) override;
    void setLiveText(const std::string& text) override;

    bool isEnabledOn() const override;
    void setEnabledOn(bool on) override;

    bool isKeepOnChecked() const override;
    void setKeepOnChecked(bool on) override;
    bool isLoginItemChecked() const override;
    void setLoginItemChecked(bool on) override;
    void setResetPermissionsVisible(bool visible) override;
    void setLoginItemsSettingsVisible(bool visible) override;

    void setProfileItems(const std::vector<ProfileMenuItem>& items) override;
    void selectProfileItem(std::size_t index) override;
    std::optional<std::string> selectedProfileID() const override;
    void setDeleteProfileEnabled(bool enabled) override;
    void showApplications(const ApplicationsSheet& sheet) override;

    void selectAction(std::size_t slot, std::int64_t action) override;
    std::int64_t selectedAction(std::size_t slot) const override;
    void setRecordButton(std::size_t slot, const RecordButtonState& state) override;

    void setStatusItem(const StatusItemAppearance& appearance) override;

  private:
    TASettingsControls* __strong controls_;
    // What the status item shows, so that an unchanged appearance makes no new image.
    std::optional<StatusItemAppearance> statusItemShown_;
};

}  // namespace tactora::macos
