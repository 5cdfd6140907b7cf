#include "core/localization/Localizer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "core/localization/LocalizationKeys.h"
#include "core/localization/StringsTable.h"

namespace tactora {
namespace {

class LocalizerTest : public testing::Test {
  protected:
    LocalizerTest() {
        setStringTable(std::make_shared<const StringsTable>(StringsTable::Entries{
            {"finger.many", "%lld fingers"},
            {"live", "Fingers: %lld · Last gesture: %@ · Last action: %@"},
            {"permissions", "Accessibility: %@ · Input Monitoring: %@"},
            {"ok", "Granted"},
            {"pending", "Not granted"},
            {"sensor.connected", "Magic Mouse connected."},
            {"sensor.blocked", "Magic Mouse found, but it couldn’t be started (error %lld)."},
            {"percent", "100% sure"},
            {"reordered", "%2$@ before %1$@"},
        }));
    }

    ~LocalizerTest() override { setStringTable(nullptr); }

    LocalizerTest(const LocalizerTest&) = delete;
    LocalizerTest& operator=(const LocalizerTest&) = delete;
    LocalizerTest(LocalizerTest&&) = delete;
    LocalizerTest& operator=(LocalizerTest&&) = delete;
};

TEST_F(LocalizerTest, LooksTextUp) {
    EXPECT_EQ(L("ok"), "Granted");
}

TEST_F(LocalizerTest, FormatsWithIntegerArguments) {
    EXPECT_EQ(L("finger.many", 3), "3 fingers");
    EXPECT_EQ(L("sensor.blocked", std::int64_t{42}),
              "Magic Mouse found, but it couldn’t be started (error 42).");
}

TEST_F(LocalizerTest, FormatsWithMixedArguments) {
    EXPECT_EQ(L("live", 0, "—", std::string("—")), "Fingers: 0 · Last gesture: — · Last action: —");
}

TEST_F(LocalizerTest, FormatsWithLocalisedArguments) {
    EXPECT_EQ(L("permissions", L("ok"), L("pending")),
              "Accessibility: Granted · Input Monitoring: Not granted");
}

TEST_F(LocalizerTest, FormatsPositionalTexts) {
    EXPECT_EQ(L("reordered", "a", "b"), "b before a");
}

TEST_F(LocalizerTest, StatusKeyIgnoresTheErrorCodeItDoesNotShow) {
    EXPECT_EQ(L("sensor.connected", std::int32_t{0}), "Magic Mouse connected.");
}

TEST_F(LocalizerTest, TextWithPlaceholdersLookedUpWithoutArgumentsIsReturnedUnformatted) {
    EXPECT_EQ(L("live"), "Fingers: %lld · Last gesture: %@ · Last action: %@");
    EXPECT_EQ(localize("finger.many", {}), "%lld fingers");
}

TEST_F(LocalizerTest, LiteralPercentIsNotReinterpretedWithoutArguments) {
    EXPECT_EQ(L("percent"), "100% sure");
}

TEST_F(LocalizerTest, KeyAbsentFromTheTableComesBackUnchanged) {
    EXPECT_EQ(L("menu.quit"), "menu.quit");
}

TEST_F(LocalizerTest, AbsentKeyWithArgumentsIsFormattedAsIfItWereTheText) {
    EXPECT_EQ(L("gesture.tap", 2), "gesture.tap");
    EXPECT_EQ(L("count %d of %@", 2, "x"), "count 2 of x");
}

TEST_F(LocalizerTest, WithNoTableEveryKeyShowsAsItself) {
    setStringTable(nullptr);
    for (const LocalizationKey& key : localizationKeys) {
        EXPECT_EQ(L(key.key()), key.key());
    }
    EXPECT_EQ(L("sensor.blocked", 42), "sensor.blocked");
}

TEST_F(LocalizerTest, ReplacingTheTableChangesTheTexts) {
    setStringTable(
        std::make_shared<const StringsTable>(StringsTable::Entries{{"ok", "Permitido"}}));
    EXPECT_EQ(L("ok"), "Permitido");
    EXPECT_EQ(L("pending"), "pending");
}

TEST_F(LocalizerTest, HostileTextWithArgumentsCannotReadPastThem) {
    setStringTable(std::make_shared<const StringsTable>(
        StringsTable::Entries{{"hostile", "%@ %@ %9$@ %s %n %lld%"}}));
    EXPECT_EQ(L("hostile", "a"), "a %@ %9$@ %s %n %lld%");
}

class LocalizerPluralTest : public LocalizerTest {
  protected:
    static void usePlurals(std::optional<std::string> language) {
        PluralFormat fingers{.format = "%#@n@ · %@", .variables = {}};
        fingers.variables["n"] = {.valueType = "lld",
                                  .forms = {{PluralCategory::one, "%lld finger"},
                                            {PluralCategory::other, "%lld fingers"}}};
        setStringTable(std::make_shared<const StringsTable>(
            StringsTable::Entries{{"count", "%lld finger(s) · %@"}, {"plain", "%lld"}},
            StringsTable::PluralEntries{{"count", fingers}}, std::move(language)));
    }
};

TEST_F(LocalizerPluralTest, PluralEntryChoosesTheFormByTheLanguagesRules) {
    usePlurals("en");
    EXPECT_EQ(L("count", 1, "tap"), "1 finger · tap");
    EXPECT_EQ(L("count", 2, "tap"), "2 fingers · tap");
    usePlurals("pt-BR");
    EXPECT_EQ(L("count", 0, "tap"), "0 finger · tap");
}

TEST_F(LocalizerPluralTest, WithoutALanguageEveryValueTakesTheOtherForm) {
    usePlurals(std::nullopt);
    EXPECT_EQ(L("count", 1, "tap"), "1 fingers · tap");
}

TEST_F(LocalizerPluralTest, UnresolvablePluralFallsBackToThePlainText) {
    usePlurals("en");
    EXPECT_EQ(L("count", "one", "tap"), "%lld finger(s) · tap");
    EXPECT_EQ(L("plain", 3), "3");
}

TEST_F(LocalizerPluralTest, WithoutArgumentsThePlainTextIsReturned) {
    usePlurals("en");
    EXPECT_EQ(L("count"), "%lld finger(s) · %@");
}

}  // namespace
}  // namespace tactora
