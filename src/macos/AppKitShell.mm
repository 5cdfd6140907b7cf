#include "macos/AppKitShell.h"

#include <algorithm>

#include "macos/BundledIcon.h"
#include "macos/MenuBuilder.h"
#include "macos/SettingsWindowBuilder.h"
#include "macos/StringConversion.h"

namespace tactora::macos {

LaunchOrigin AppKitShell::launchOrigin() const {
    return target_.launchedAsLoginItem ? LaunchOrigin::loginItem : LaunchOrigin::user;
}

void AppKitShell::setRegularActivationPolicy() {
    [NSApp setActivationPolicy:NSApplicationActivationPolicyRegular];
}

void AppKitShell::setAccessoryActivationPolicy() {
    [NSApp setActivationPolicy:NSApplicationActivationPolicyAccessory];
}

void AppKitShell::applyApplicationIcon() {
    NSImage* icon = loadBundledIcon();
    if (icon != nil) {
        NSApp.applicationIconImage = icon;
    }
}

void AppKitShell::buildMainMenu(const std::vector<MenuEntry>& items) {
    NSMenuItem* application = [[NSMenuItem alloc] init];
    application.submenu = MenuBuilder(target_).menu(items);
    NSMenu* bar = [[NSMenu alloc] init];
    [bar addItem:application];
    NSApp.mainMenu = bar;
}

void AppKitShell::addMainMenu(const std::string& title, const std::vector<MenuEntry>& items) {
    NSMenu* menu = MenuBuilder(target_).menu(items);
    menu.title = toNSString(title);
    NSMenuItem* item = [[NSMenuItem alloc] init];
    item.submenu = menu;
    [NSApp.mainMenu addItem:item];
    const bool windowCommands = std::ranges::any_of(
        items, [](const MenuEntry& entry) { return entry.command == MenuCommand::minimize; });
    if (windowCommands) {
        NSApp.windowsMenu = menu;
    }
}

void AppKitShell::buildWindow(const SettingsWindowTexts& texts) {
    controls_.window = SettingsWindowBuilder(controls_, target_).build(texts);
}

void AppKitShell::createStatusItem() {
    controls_.statusItem =
        [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
}

void AppKitShell::buildStatusMenu(const std::vector<MenuEntry>& items) {
    controls_.statusItem.menu = MenuBuilder(target_).menu(items);
}

void AppKitShell::showWindow() {
    [controls_.window makeKeyAndOrderFront:nil];
    // From macOS 14 on, activation is a request the system may refuse; the window then still
    // comes in front of the other applications' windows.
    [controls_.window orderFrontRegardless];
}

}  // namespace tactora::macos
