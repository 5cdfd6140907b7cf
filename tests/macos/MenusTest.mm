// The menu bar as the shell builds it from the controller's descriptions: the system's own
// commands reach the application, the window commands the key window, and the Window menu is
// the application's windows menu.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <memory>

#include "core/app/AppMenus.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "macos/AppKitShell.h"
#include "macos/MenuBuilder.h"
#import "macos/TAApplicationDelegate.h"
#import "macos/TASettingsControls.h"

namespace tactora::testing {
namespace {

class MenusTest : public ::testing::Test {
  protected:
    // Without texts, every title is its key.
    void SetUp() override {
        setStringTable(std::make_shared<const StringsTable>(StringsTable::Entries{}));
    }
    void TearDown() override { setStringTable(nullptr); }

    NSMenuItem* item(NSMenu* menu, NSString* title) const {
        NSMenuItem* found = [menu itemWithTitle:title];
        EXPECT_NE(found, nil) << title.UTF8String;
        return found;
    }

    TAApplicationDelegate* target_ = [[TAApplicationDelegate alloc] init];
};

TEST_F(MenusTest, TheApplicationMenuHasTheSystemsCommands) {
    NSMenu* menu = macos::MenuBuilder(target_).menu(mainMenuItems());

    NSMenuItem* about = item(menu, @"menu.about");
    EXPECT_EQ(about.action, @selector(orderFrontStandardAboutPanel:));
    EXPECT_EQ(about.target, NSApp);

    NSMenuItem* settings = item(menu, @"menu.preferences");
    EXPECT_EQ(settings.action, @selector(show));
    EXPECT_EQ(settings.target, target_);
    EXPECT_TRUE([settings.keyEquivalent isEqualToString:@","]);
    EXPECT_EQ(settings.keyEquivalentModifierMask, NSEventModifierFlagCommand);

    NSMenuItem* hide = item(menu, @"menu.hide");
    EXPECT_EQ(hide.action, @selector(hide:));
    EXPECT_TRUE([hide.keyEquivalent isEqualToString:@"h"]);
    EXPECT_EQ(hide.keyEquivalentModifierMask, NSEventModifierFlagCommand);

    NSMenuItem* others = item(menu, @"menu.hide_others");
    EXPECT_EQ(others.action, @selector(hideOtherApplications:));
    EXPECT_EQ(others.target, NSApp);
    EXPECT_TRUE([others.keyEquivalent isEqualToString:@"h"]);
    EXPECT_EQ(others.keyEquivalentModifierMask,
              NSEventModifierFlagCommand | NSEventModifierFlagOption);

    NSMenuItem* showAll = item(menu, @"menu.show_all");
    EXPECT_EQ(showAll.action, @selector(unhideAllApplications:));
    EXPECT_EQ(showAll.keyEquivalent.length, 0U);
}

TEST_F(MenusTest, OpenAndQuitStayAsTheyWere) {
    NSMenu* menu = macos::MenuBuilder(target_).menu(mainMenuItems());

    NSMenuItem* open = item(menu, @"menu.open");
    EXPECT_EQ(open.action, @selector(show));
    EXPECT_EQ(open.keyEquivalent.length, 0U);
    NSMenuItem* quit = item(menu, @"menu.quit");
    EXPECT_EQ(quit.action, @selector(quit));
    EXPECT_TRUE([quit.keyEquivalent isEqualToString:@"q"]);
    EXPECT_LT([menu indexOfItem:open], [menu indexOfItem:quit]);
    EXPECT_EQ(menu.itemArray.lastObject, quit);
}

TEST_F(MenusTest, TheWindowMenuIsTheApplicationsWindowsMenu) {
    TASettingsControls* controls = [[TASettingsControls alloc] initWithEnableTitle:@"enable"];
    macos::AppKitShell shell(controls, target_);
    shell.buildMainMenu(mainMenuItems());
    shell.addMainMenu(editMenuTitle(), editMenuItems());
    shell.addMainMenu(windowMenuTitle(), windowMenuItems());

    NSMenu* window = NSApp.windowsMenu;
    ASSERT_NE(window, nil);
    EXPECT_TRUE([window.title isEqualToString:@"menu.window"]);
    EXPECT_EQ(NSApp.mainMenu.itemArray.lastObject.submenu, window);

    NSMenuItem* minimize = item(window, @"menu.minimize");
    EXPECT_EQ(minimize.action, @selector(performMiniaturize:));
    EXPECT_EQ(minimize.target, nil);
    EXPECT_TRUE([minimize.keyEquivalent isEqualToString:@"m"]);
    NSMenuItem* front = item(window, @"menu.bring_all_to_front");
    EXPECT_EQ(front.action, @selector(arrangeInFront:));
    EXPECT_EQ(front.target, NSApp);
    NSMenuItem* close = item(window, @"menu.close_window");
    EXPECT_EQ(close.action, @selector(performClose:));
}

TEST_F(MenusTest, TheEditMenuIsNotTheWindowsMenu) {
    TASettingsControls* controls = [[TASettingsControls alloc] initWithEnableTitle:@"enable"];
    macos::AppKitShell shell(controls, target_);
    shell.buildMainMenu(mainMenuItems());
    NSApp.windowsMenu = nil;
    shell.addMainMenu(editMenuTitle(), editMenuItems());

    EXPECT_EQ(NSApp.windowsMenu, nil);
}

}  // namespace
}  // namespace tactora::testing
