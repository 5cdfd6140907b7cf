#pragma once

#include <string>
#include <vector>

#include "core/app/SettingsWindowTexts.h"
#include "core/platform/AppShell.h"
#import "macos/TAApplicationDelegate.h"
#import "macos/TASettingsControls.h"

namespace tactora::macos {

// The application's menus, settings window and status item, built with AppKit.
class AppKitShell final : public AppShell {
  public:
    AppKitShell(TASettingsControls* controls, TAApplicationDelegate* target)
        : controls_(controls), target_(target) {}

    LaunchOrigin launchOrigin() const override;
    void setRegularActivationPolicy() override;
    void setAccessoryActivationPolicy() override;
    void applyApplicationIcon() override;
    void buildMainMenu(const std::vector<MenuEntry>& items) override;
    void addMainMenu(const std::string& title, const std::vector<MenuEntry>& items) override;
    void buildWindow(const SettingsWindowTexts& texts) override;
    void createStatusItem() override;
    void buildStatusMenu(const std::vector<MenuEntry>& items) override;
    void showWindow() override;

  private:
    TASettingsControls* __strong controls_;
    TAApplicationDelegate* __strong target_;
};

}  // namespace tactora::macos
