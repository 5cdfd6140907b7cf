// The menu bar's menus as the controller describes them to the shell.
#include "core/app/AppMenus.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"

namespace tactora::testing {
namespace {

class AppMenusTest : public ::testing::Test {
  protected:
    // Without texts, every title is its key.
    void SetUp() override {
        setStringTable(std::make_shared<const StringsTable>(StringsTable::Entries{}));
    }
    void TearDown() override { setStringTable(nullptr); }
};

// The entries of `menu` whose titles are among `titles`, in the menu's order.
std::vector<MenuEntry> only(const std::vector<MenuEntry>& menu,
                            const std::vector<std::string>& titles) {
    std::vector<MenuEntry> kept;
    std::ranges::copy_if(menu, std::back_inserter(kept), [&](const MenuEntry& entry) {
        return std::ranges::find(titles, entry.title) != titles.end();
    });
    return kept;
}

const MenuEntry& entryTitled(const std::vector<MenuEntry>& menu, const std::string& title) {
    const auto found = std::ranges::find(menu, title, &MenuEntry::title);
    EXPECT_NE(found, menu.end()) << title;
    return *found;
}

TEST_F(AppMenusTest, TheApplicationMenuKeepsOpenAndQuitAsTheyWereInTheirOrder) {
    EXPECT_EQ(only(mainMenuItems(), {"menu.open", "menu.quit"}),
              (std::vector<MenuEntry>{{"menu.open", MenuCommand::show, ""},
                                      {"menu.quit", MenuCommand::quit, "q"}}));
}

TEST_F(AppMenusTest, TheApplicationMenuBeginsWithAboutAndEndsWithQuit) {
    const std::vector<MenuEntry> menu = mainMenuItems();
    ASSERT_FALSE(menu.empty());
    EXPECT_EQ(menu.front(), (MenuEntry{"menu.about", MenuCommand::about, ""}));
    EXPECT_EQ(menu.back().command, MenuCommand::quit);
}

TEST_F(AppMenusTest, SettingsOpensTheWindowWithCommandComma) {
    EXPECT_EQ(entryTitled(mainMenuItems(), "menu.preferences"),
              (MenuEntry{"menu.preferences", MenuCommand::show, ","}));
}

TEST_F(AppMenusTest, HidingTakesCommandHAndHidingTheOthersAddsOption) {
    const std::vector<MenuEntry> menu = mainMenuItems();
    EXPECT_EQ(entryTitled(menu, "menu.hide"), (MenuEntry{"menu.hide", MenuCommand::hide, "h"}));
    const MenuEntry& others = entryTitled(menu, "menu.hide_others");
    EXPECT_EQ(others.command, MenuCommand::hideOthers);
    EXPECT_EQ(others.keyEquivalent, "h");
    EXPECT_TRUE(others.withOption);
    EXPECT_EQ(entryTitled(menu, "menu.show_all"),
              (MenuEntry{"menu.show_all", MenuCommand::showAll, ""}));
}

TEST_F(AppMenusTest, OnlyHideOthersUsesOption) {
    for (const std::vector<MenuEntry>& menu :
         {mainMenuItems(), editMenuItems(), windowMenuItems(), statusMenuItems({})}) {
        for (const MenuEntry& entry : menu) {
            EXPECT_EQ(entry.withOption, entry.command == MenuCommand::hideOthers) << entry.title;
        }
    }
}

TEST_F(AppMenusTest, NoTwoItemsOfTheMenuBarShareAKeyEquivalent) {
    std::vector<std::string> keys;
    for (const std::vector<MenuEntry>& menu :
         {mainMenuItems(), editMenuItems(), windowMenuItems()}) {
        for (const MenuEntry& entry : menu) {
            if (!entry.keyEquivalent.empty()) {
                keys.push_back(entry.keyEquivalent + (entry.withOption ? "+option" : ""));
            }
        }
    }
    std::ranges::sort(keys);
    EXPECT_EQ(std::ranges::adjacent_find(keys), keys.end());
}

TEST_F(AppMenusTest, TheWindowMenuMinimisesClosesAndBringsAllToFront) {
    EXPECT_EQ(windowMenuTitle(), "menu.window");
    EXPECT_EQ(
        windowMenuItems(),
        (std::vector<MenuEntry>{{"menu.minimize", MenuCommand::minimize, "m"},
                                {"menu.close_window", MenuCommand::closeWindow, "w"},
                                {"", MenuCommand::separator, ""},
                                {"menu.bring_all_to_front", MenuCommand::bringAllToFront, ""}}));
}

TEST_F(AppMenusTest, TheWindowMenuKeepsCloseWindow) {
    EXPECT_EQ(only(windowMenuItems(), {"menu.close_window"}),
              (std::vector<MenuEntry>{{"menu.close_window", MenuCommand::closeWindow, "w"}}));
}

}  // namespace
}  // namespace tactora::testing
