#pragma once

#include <string>
#include <vector>

#include "core/platform/LaunchOrigin.h"
#include "core/platform/MenuEntry.h"

namespace tactora {

struct SettingsWindowTexts;

// The application's furniture, built once at launch in the order that the controller's
// applicationDidFinishLaunching() decides. Main thread only.
class AppShell {
  public:
    virtual ~AppShell() = default;

    // Who started the application, as the system told it when launching began.
    virtual LaunchOrigin launchOrigin() const = 0;

    // A regular application: Dock icon and main menu as well as the status item.
    virtual void setRegularActivationPolicy() = 0;

    // An accessory application: the status item only, no Dock icon and no main menu.
    virtual void setAccessoryActivationPolicy() = 0;

    // Makes the bundled icon the application icon; keeps the default when it is missing.
    virtual void applyApplicationIcon() = 0;

    // Installs the main menu: one item whose submenu holds `items`.
    virtual void buildMainMenu(const std::vector<MenuEntry>& items) = 0;

    // Adds a menu titled `title` holding `items` to the menu bar, after the menus already there.
    // A menu that holds MenuCommand::minimize becomes the application's windows menu, in which
    // the system lists the open windows.
    virtual void addMainMenu(const std::string& title, const std::vector<MenuEntry>& items) = 0;

    // Builds the settings window around the controls of SettingsView, showing `texts` and
    // nothing else of its own: one gesture row per texts.gestureRows entry, whose pop-up holds
    // texts.actionNames and reaches the controller's changed(slot), and whose record button
    // reaches recordShortcut(slot). Leaves the gesture rows' selections and the record buttons'
    // final titles to the controller. Does not show the window.
    virtual void buildWindow(const SettingsWindowTexts& texts) = 0;

    // Creates the status-bar item, variable length, with no menu yet.
    virtual void createStatusItem() = 0;

    // Attaches a menu holding `items` to the status item, replacing the one it had.
    virtual void buildStatusMenu(const std::vector<MenuEntry>& items) = 0;

    // Brings the settings window to the front and makes it key.
    virtual void showWindow() = 0;
};

}  // namespace tactora
