#include "core/moreactions/ExtraActionCatalogue.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "core/actions/ActionCatalogue.h"
#include "core/localization/LocalizationKeys.h"
#include "core/moreactions/WebAddress.h"

namespace tactora {
namespace {

using catalogue::extraActions;

TEST(ExtraActionCatalogueTest, ExtraActionsFollowTheFifteenInOrder) {
    EXPECT_EQ(action::extraBase, 15);
    EXPECT_EQ(action::index(ExtraAction::openApplication), 15);
    EXPECT_EQ(action::index(ExtraAction::controlClick), action::allCount - 1);
    EXPECT_EQ(static_cast<std::size_t>(action::extraCount), extraActions().size());
    for (ActionIndex index = -1; index <= action::allCount; ++index) {
        EXPECT_EQ(action::isExtra(index), index >= 15 && index < action::allCount) << index;
        EXPECT_EQ(action::extra(index).has_value(), action::isExtra(index)) << index;
        EXPECT_EQ(action::isValid(index), index >= 0 && index < 15) << index;
    }
    for (const catalogue::ExtraActionInfo& entry : extraActions()) {
        EXPECT_EQ(action::extra(action::index(entry.action)), entry.action);
    }
}

TEST(ExtraActionCatalogueTest, StoredKeysAreDistinctAndReadBack) {
    std::set<std::string_view> stored;
    std::set<std::string_view> texts;
    for (const catalogue::ExtraActionInfo& entry : extraActions()) {
        stored.insert(entry.storedKey);
        texts.insert(entry.textKey);
        EXPECT_EQ(catalogue::extraFromStoredKey(entry.storedKey), entry.action);
        EXPECT_TRUE(entry.textKey.starts_with("action.")) << entry.textKey;
    }
    EXPECT_EQ(stored.size(), extraActions().size());
    EXPECT_EQ(texts.size(), extraActions().size());
    EXPECT_EQ(catalogue::extraFromStoredKey("teleport"), std::nullopt);
    EXPECT_EQ(catalogue::extraFromStoredKey(""), std::nullopt);
}

TEST(ExtraActionCatalogueTest, EveryNameIsLookedUpWithoutArgumentsAfterTheFifteen) {
    std::size_t position = static_cast<std::size_t>(action::count);
    for (const catalogue::ExtraActionInfo& entry : extraActions()) {
        const std::optional<LocalizationKey> key = findLocalizationKey(entry.textKey);
        ASSERT_TRUE(key) << entry.textKey;
        EXPECT_TRUE(key->arguments().empty()) << entry.textKey;
        EXPECT_EQ(localizationKeys.at(position++).key(), entry.textKey);
    }
}

TEST(ExtraActionCatalogueTest, OnlyOpeningAndShortcutsTakeAValue) {
    EXPECT_EQ(catalogue::info(ExtraAction::openApplication).value, ActionValueKind::application);
    EXPECT_EQ(catalogue::info(ExtraAction::openFile).value, ActionValueKind::file);
    EXPECT_EQ(catalogue::info(ExtraAction::openAddress).value, ActionValueKind::address);
    EXPECT_EQ(catalogue::info(ExtraAction::runShortcut).value, ActionValueKind::shortcut);
    int valued = 0;
    for (const catalogue::ExtraActionInfo& entry : extraActions()) {
        valued += entry.value == ActionValueKind::none ? 0 : 1;
    }
    EXPECT_EQ(valued, 4);
}

TEST(ExtraActionCatalogueTest, MediaActionsPressTheKeyboardsMediaKeys) {
    EXPECT_EQ(catalogue::mediaKey(ExtraAction::playPause), 16);
    EXPECT_EQ(catalogue::mediaKey(ExtraAction::nextTrack), 17);
    EXPECT_EQ(catalogue::mediaKey(ExtraAction::previousTrack), 18);
    EXPECT_EQ(catalogue::mediaKey(ExtraAction::volumeUp), 0);
    EXPECT_EQ(catalogue::mediaKey(ExtraAction::volumeDown), 1);
    EXPECT_EQ(catalogue::mediaKey(ExtraAction::mute), 7);
    EXPECT_EQ(catalogue::mediaKey(ExtraAction::spotlight), std::nullopt);
}

TEST(ExtraActionCatalogueTest, MediaKeyEventsCarryTheKeyAndItsStateInData1) {
    EXPECT_EQ(catalogue::mediaKeyEvent(16, true),
              (SystemDefinedEvent{.subtype = 8, .data1 = 0x100A00, .modifierFlags = 0xA00}));
    EXPECT_EQ(catalogue::mediaKeyEvent(16, false),
              (SystemDefinedEvent{.subtype = 8, .data1 = 0x100B00, .modifierFlags = 0xB00}));
    EXPECT_EQ(catalogue::mediaKeyEvent(0, true).data1, 0xA00);
    EXPECT_EQ(catalogue::mediaKeyEvent(7, false).data1, 0x70B00);
}

TEST(ExtraActionCatalogueTest, SystemViewsUseTheSystemsDefaultShortcuts) {
    // ⌃← and ⌃→ with the flags a real arrow key carries.
    EXPECT_EQ(catalogue::systemKeyStroke(ExtraAction::spaceLeft), (KeyStroke{123, 0xA40000}));
    EXPECT_EQ(catalogue::systemKeyStroke(ExtraAction::spaceRight), (KeyStroke{124, 0xA40000}));
    EXPECT_EQ(catalogue::systemKeyStroke(ExtraAction::spotlight), (KeyStroke{49, 0x100000}));
    EXPECT_EQ(catalogue::systemKeyStroke(ExtraAction::lookUp), (KeyStroke{2, 0x140000}));
    EXPECT_EQ(catalogue::systemKeyStroke(ExtraAction::notificationCenter),
              (KeyStroke{45, 0x800000}));
    EXPECT_EQ(catalogue::systemKeyStroke(ExtraAction::launchpad), std::nullopt);
}

TEST(ExtraActionCatalogueTest, AppExposeAndLaunchpadAreDockNotifications) {
    EXPECT_EQ(catalogue::dockNotification(ExtraAction::appExpose), "com.apple.expose.front.awake");
    EXPECT_EQ(catalogue::dockNotification(ExtraAction::launchpad), "com.apple.launchpad.toggle");
    EXPECT_EQ(catalogue::dockNotification(ExtraAction::spaceLeft), std::nullopt);
}

TEST(ExtraActionCatalogueTest, EveryActionWithoutAValueHasExactlyOneWayToBePerformed) {
    for (const catalogue::ExtraActionInfo& entry : extraActions()) {
        const int ways = (catalogue::mediaKey(entry.action) ? 1 : 0) +
                         (catalogue::systemKeyStroke(entry.action) ? 1 : 0) +
                         (catalogue::dockNotification(entry.action) ? 1 : 0) +
                         (catalogue::clickFlags(entry.action) ? 1 : 0) +
                         (catalogue::process(entry.action, "x") ? 1 : 0);
        const bool opens =
            entry.value != ActionValueKind::none && entry.action != ExtraAction::runShortcut;
        EXPECT_EQ(ways, opens ? 0 : 1) << entry.storedKey;
    }
}

TEST(ExtraActionCatalogueTest, ModifierClicksClickTheLeftButtonWithTheirModifier) {
    EXPECT_EQ(catalogue::clickFlags(ExtraAction::commandClick), 0x100000U);
    EXPECT_EQ(catalogue::clickFlags(ExtraAction::optionClick), 0x80000U);
    EXPECT_EQ(catalogue::clickFlags(ExtraAction::shiftClick), 0x20000U);
    EXPECT_EQ(catalogue::clickFlags(ExtraAction::controlClick), 0x40000U);
    for (const ExtraAction click : {ExtraAction::commandClick, ExtraAction::optionClick,
                                    ExtraAction::shiftClick, ExtraAction::controlClick}) {
        EXPECT_EQ(catalogue::pressTarget(action::index(click)), MouseButton::left);
        EXPECT_EQ(catalogue::pressFlags(action::index(click)), catalogue::clickFlags(click));
    }
}

TEST(ExtraActionCatalogueTest, OtherExtraActionsAreSwallowedAndPerformedOnRelease) {
    for (const catalogue::ExtraActionInfo& entry : extraActions()) {
        if (catalogue::clickFlags(entry.action)) {
            continue;
        }
        EXPECT_EQ(catalogue::pressTarget(action::index(entry.action)), std::nullopt);
        EXPECT_EQ(catalogue::pressFlags(action::index(entry.action)), std::nullopt);
    }
    EXPECT_EQ(catalogue::pressFlags(action::left), std::nullopt);
}

TEST(ExtraActionCatalogueTest, AShortcutRunsByNameAsOneArgumentWithATimeLimit) {
    const std::optional<ProcessRequest> request =
        catalogue::process(ExtraAction::runShortcut, "Say \"hi\"; rm -rf ~");
    ASSERT_TRUE(request);
    EXPECT_EQ(request->path, "/usr/bin/shortcuts");
    EXPECT_EQ(request->arguments, (std::vector<std::string>{"run", "Say \"hi\"; rm -rf ~"}));
    EXPECT_EQ(request->timeLimit, 60.0);
    EXPECT_FALSE(request->captureOutput);
}

TEST(ExtraActionCatalogueTest, AnAreaScreenshotGoesToTheClipboard) {
    const std::optional<ProcessRequest> request =
        catalogue::process(ExtraAction::screenshotArea, "");
    ASSERT_TRUE(request);
    EXPECT_EQ(request->path, "/usr/sbin/screencapture");
    EXPECT_EQ(request->arguments, (std::vector<std::string>{"-i", "-c"}));
    EXPECT_EQ(request->timeLimit, std::nullopt);
}

TEST(ExtraActionCatalogueTest, TheShortcutsAreListedWithTheirOutput) {
    const ProcessRequest request = catalogue::shortcutList();
    EXPECT_EQ(request.path, "/usr/bin/shortcuts");
    EXPECT_EQ(request.arguments, std::vector<std::string>{"list"});
    EXPECT_TRUE(request.captureOutput);
    EXPECT_TRUE(request.timeLimit.has_value());
}

TEST(WebAddressTest, KeepsAddressesWithASchemeAsTyped) {
    EXPECT_EQ(webAddress("https://www.apple.com/mac/"), "https://www.apple.com/mac/");
    EXPECT_EQ(webAddress("  http://example.com?q=a+b  "), "http://example.com?q=a+b");
    EXPECT_EQ(webAddress("mailto:someone@example.com"), "mailto:someone@example.com");
    EXPECT_EQ(webAddress("x-apple.systempreferences:com.apple.preference.security"),
              "x-apple.systempreferences:com.apple.preference.security");
}

TEST(WebAddressTest, GivesABareHostNameHttps) {
    EXPECT_EQ(webAddress("www.apple.com"), "https://www.apple.com");
    EXPECT_EQ(webAddress("apple.com/mac?x=1"), "https://apple.com/mac?x=1");
}

TEST(WebAddressTest, RefusesWhatIsNotAUrl) {
    for (const char* typed :
         {"", "   ", "apple", "hello world.com", "https://", "https:", "http:/apple.com",
          "https:///path", "1http://a.com", ".com", "name@example.com", "https://a b.com",
          "ht tp://a.com", "https://a\x01.com"}) {
        EXPECT_EQ(webAddress(typed), std::nullopt) << typed;
    }
}

}  // namespace
}  // namespace tactora
