#include "core/localization/LocalizationKeys.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/app/Globals.h"

namespace tactora {
namespace {

std::vector<KeyArgument> argumentsOf(std::string_view key) {
    const std::optional<LocalizationKey> entry = findLocalizationKey(key);
    if (!entry) {
        ADD_FAILURE() << "no entry for " << key;
        return {};
    }
    return {entry->arguments().begin(), entry->arguments().end()};
}

TEST(LocalizationKeysTest, ListsDistinctKeysBeyondTheSixtyNineOfTheWindowAndMenus) {
    std::set<std::string_view> keys;
    for (const LocalizationKey& key : localizationKeys) {
        keys.insert(key.key());
    }
    EXPECT_EQ(keys.size(), localizationKeys.size());
    EXPECT_GE(keys.size(), 69U);
}

TEST(LocalizationKeysTest, KeysAreDottedLowerCaseAscii) {
    for (const LocalizationKey& key : localizationKeys) {
        for (const char character : key.key()) {
            const bool allowed =
                (character >= 'a' && character <= 'z') || character == '.' || character == '_';
            EXPECT_TRUE(allowed) << key.key();
        }
    }
}

TEST(LocalizationKeysTest, HoldsTheActionCatalogueInIndexOrder) {
    for (std::size_t index = 0; index < actionKeys.size(); ++index) {
        EXPECT_EQ(localizationKeys.at(index).key(), actionKeys.at(index));
        EXPECT_TRUE(localizationKeys.at(index).arguments().empty());
    }
}

TEST(LocalizationKeysTest, KeysWithArgumentsTakeThemInOrder) {
    EXPECT_EQ(argumentsOf("error.action"), (std::vector{stringArgument, integerArgument}));
    EXPECT_EQ(argumentsOf("live"), (std::vector{integerArgument, stringArgument, stringArgument}));
    EXPECT_EQ(argumentsOf("permissions"), (std::vector{stringArgument, stringArgument}));
    for (const std::string_view key : {"action.failed", "gesture.tap", "gesture.click",
                                       "finger.many", "export.done", "import.done"}) {
        EXPECT_EQ(argumentsOf(key), std::vector{integerArgument}) << key;
    }
    for (const std::string_view key : {"profile.delete.message", "apps.title"}) {
        EXPECT_EQ(argumentsOf(key), std::vector{stringArgument}) << key;
    }
    EXPECT_EQ(argumentsOf("profile.automatic"), (std::vector{stringArgument, stringArgument}));
    for (const std::string_view key : {"devices.entry", "devices.conflict"}) {
        EXPECT_EQ(argumentsOf(key), (std::vector{stringArgument, stringArgument})) << key;
    }
    EXPECT_EQ(argumentsOf("devices.state.blocked"), std::vector{integerArgument});
}

TEST(LocalizationKeysTest, OnlyTheBlockedSensorShowsItsErrorCode) {
    EXPECT_EQ(argumentsOf("sensor.blocked"), std::vector{integerArgument});
    for (const std::string_view key : {"sensor.not_started", "sensor.connected", "sensor.missing",
                                       "sensor.incompatible", "sensor.unavailable"}) {
        EXPECT_EQ(argumentsOf(key), std::vector{unshownIntegerArgument}) << key;
    }
}

TEST(LocalizationKeysTest, SixtySevenKeysTakeArgumentsAndTheRestNone) {
    std::size_t withArguments = 0;
    for (const LocalizationKey& key : localizationKeys) {
        withArguments += key.arguments().empty() ? 0 : 1;
    }
    EXPECT_EQ(withArguments, 67U);
}

TEST(LocalizationKeysTest, ARecordingThatCantStartShowsWhatAndWhy) {
    for (const std::string_view key :
         {"trace.failed.permission", "trace.failed.full", "trace.failed.readonly"}) {
        EXPECT_EQ(argumentsOf(key), std::vector{stringArgument}) << key;
    }
    EXPECT_EQ(argumentsOf("trace.failed.other"), (std::vector{stringArgument, stringArgument}));
    EXPECT_EQ(argumentsOf("trace.error.id"), std::vector{integerArgument});
    EXPECT_EQ(argumentsOf("trace.error.crowded"), std::vector{integerArgument});
    EXPECT_TRUE(argumentsOf("import.blank").empty());
}

TEST(LocalizationKeysTest, KeepingGesturesOnShowsSecondsCodesAndExitStatuses) {
    for (const std::string_view key : {"keep.cooldown", "reset.failed", "login.failed"}) {
        EXPECT_EQ(argumentsOf(key), std::vector{integerArgument}) << key;
    }
}

TEST(LocalizationKeysTest, ExtraActionTextsTakeTheirNameAndAShortcutsExitStatus) {
    for (const std::string_view key :
         {"extra.url.invalid", "extra.missing.app", "extra.missing.file", "extra.missing.url",
          "extra.missing.shortcut", "extra.failed.open", "extra.timeout.shortcut",
          "extra.failed.start", "extra.row.missing"}) {
        EXPECT_EQ(argumentsOf(key), std::vector{stringArgument}) << key;
    }
    EXPECT_EQ(argumentsOf("extra.failed.shortcut"), (std::vector{stringArgument, integerArgument}));
}

TEST(LocalizationKeysTest, UnknownKeyHasNoEntry) {
    EXPECT_FALSE(findLocalizationKey("menu.settings"));
    EXPECT_FALSE(findLocalizationKey(""));
}

static_assert(findLocalizationKey("live")->arguments().size() == 3);

}  // namespace
}  // namespace tactora
