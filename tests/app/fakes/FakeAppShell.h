#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/fakes/CallLog.h"
#include "core/app/SettingsWindowTexts.h"
#include "core/platform/AppShell.h"

namespace tactora::testing {

class FakeAppShell final : public AppShell {
  public:
    explicit FakeAppShell(CallLog& log) : log_(log) {}

    LaunchOrigin launchOrigin() const override { return origin; }
    void setRegularActivationPolicy() override { log_.add("shell.setRegularActivationPolicy"); }
    void setAccessoryActivationPolicy() override { log_.add("shell.setAccessoryActivationPolicy"); }
    void applyApplicationIcon() override { log_.add("shell.applyApplicationIcon"); }
    void buildMainMenu(const std::vector<MenuEntry>& items) override {
        log_.add("shell.buildMainMenu");
        mainMenu = items;
    }
    void addMainMenu(const std::string& title, const std::vector<MenuEntry>& items) override {
        log_.add("shell.addMainMenu");
        addedMenus.emplace_back(title, items);
    }
    void buildWindow(const SettingsWindowTexts& texts) override {
        log_.add("shell.buildWindow");
        window = texts;
    }
    void createStatusItem() override { log_.add("shell.createStatusItem"); }
    void buildStatusMenu(const std::vector<MenuEntry>& items) override {
        log_.add("shell.buildStatusMenu");
        statusMenu = items;
    }
    void showWindow() override { log_.add("shell.showWindow"); }

    LaunchOrigin origin = LaunchOrigin::user;
    std::vector<MenuEntry> mainMenu;
    std::vector<std::pair<std::string, std::vector<MenuEntry>>> addedMenus;
    std::vector<MenuEntry> statusMenu;
    std::optional<SettingsWindowTexts> window;

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
