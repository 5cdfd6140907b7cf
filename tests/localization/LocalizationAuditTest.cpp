#include "core/localization/LocalizationAudit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/localization/LocalizationKeys.h"

namespace tactora {
namespace {

std::optional<std::string> audit(std::string_view key, std::string_view text) {
    const std::optional<LocalizationKey> entry = findLocalizationKey(key);
    if (!entry) {
        ADD_FAILURE() << "no entry for " << key;
        return std::nullopt;
    }
    return auditLocalizedText(*entry, text);
}

TEST(LocalizationAuditTest, AcceptsSequentialConversionsInOrder) {
    EXPECT_EQ(audit("live", "Fingers: %lld · Last gesture: %@ · Last action: %@"), std::nullopt);
    EXPECT_EQ(audit("error.action", "“%@” failed (%d)."), std::nullopt);
}

TEST(LocalizationAuditTest, AcceptsPositionalConversionsInAnyOrder) {
    EXPECT_EQ(audit("error.action", "Error %2$lld: %1$@"), std::nullopt);
}

TEST(LocalizationAuditTest, AcceptsPercentSignsInFormattedTexts) {
    EXPECT_EQ(audit("finger.many", "%lld fingers (100%%)"), std::nullopt);
}

TEST(LocalizationAuditTest, RejectsConversionsInTheWrongOrder) {
    EXPECT_EQ(audit("error.action", "Error %lld: %@"),
              "\"%lld\" does not fit argument 1, a string (%@)");
}

TEST(LocalizationAuditTest, RejectsAMissingArgument) {
    EXPECT_EQ(audit("live", "Fingers: %lld · Last gesture: %@"), "does not show argument 3");
}

TEST(LocalizationAuditTest, RejectsAnExtraConversion) {
    EXPECT_EQ(audit("finger.many", "%lld of %lld fingers"),
              "\"%lld\" refers to argument 2, but the key has 1");
}

TEST(LocalizationAuditTest, RejectsAnUnsupportedConversion) {
    EXPECT_EQ(audit("finger.many", "%s fingers"), "has the unsupported conversion \"%s\"");
    EXPECT_EQ(audit("finger.many", "%lld fingers, 100%"), "has the unsupported conversion \"%\"");
}

TEST(LocalizationAuditTest, RejectsUnsignedConversionsForSignedIntegers) {
    EXPECT_EQ(audit("action.failed", "Failed (%llu)"),
              "\"%llu\" does not fit argument 1, a signed integer (%lld)");
}

TEST(LocalizationAuditTest, RejectsShortIntegerConversions) {
    EXPECT_EQ(audit("action.failed", "Failed (%hd)"),
              "\"%hd\" does not fit argument 1, a signed integer (%lld)");
    EXPECT_EQ(audit("action.failed", "Failed (%hhi)"),
              "\"%hhi\" does not fit argument 1, a signed integer (%lld)");
}

TEST(LocalizationAuditTest, AcceptsFlagsWidthsAndPrecisions) {
    EXPECT_EQ(audit("error.action", "“%-10@” failed (%+5qd)."), std::nullopt);
    EXPECT_EQ(audit("action.failed", "Failed (%.3zd)"), std::nullopt);
}

TEST(LocalizationAuditTest, RejectsWidthsTakenFromArguments) {
    EXPECT_EQ(audit("action.failed", "Failed (%*lld)"),
              "\"%*lld\" takes its width or precision from an argument, which no caller passes");
}

TEST(LocalizationAuditTest, RejectsMixedStyles) {
    EXPECT_EQ(audit("permissions", "%1$@ · %@"), "mixes positional and sequential conversions");
}

TEST(LocalizationAuditTest, RejectsPositionZero) {
    EXPECT_EQ(audit("permissions", "%0$@ · %2$@"),
              "\"%0$@\" refers to argument 0; positions start at 1");
}

TEST(LocalizationAuditTest, SensorStatusMustNotShowTheCode) {
    EXPECT_EQ(audit("sensor.connected", "Connected (%lld)"),
              "\"%lld\" shows argument 1, which this key's text must not show");
    EXPECT_EQ(audit("sensor.connected", "Connected"), std::nullopt);
}

TEST(LocalizationAuditTest, BlockedSensorMustShowTheCode) {
    EXPECT_EQ(audit("sensor.blocked", "Couldn’t start."), "does not show argument 1");
    EXPECT_EQ(audit("sensor.blocked", "Couldn’t start (error %lld)."), std::nullopt);
}

TEST(LocalizationAuditTest, KeysWithoutArgumentsMustHoldNoConversion) {
    EXPECT_EQ(audit("hero", "Gestures %@"),
              "shows \"%@\" as written: this key takes no arguments, so its text is not formatted");
    EXPECT_EQ(audit("hero", "100%% mouse"),
              "shows \"%%\" as written: this key takes no arguments, so its text is not formatted");
    EXPECT_EQ(audit("hero", "100% mouse"), std::nullopt);
}

TEST(LocalizationAuditTest, ReportsEveryProblemOfATable) {
    const StringsFile file = parseStringsFile(
        "\"ok\" = \"Granted\";\n\"ok\" = \"Yes\";\n\"finger.many\" = \"%@ fingers\";\n"
        "\"menu.settings\" = \"Settings\";\n\"hero\" = ");
    const std::vector<std::string> problems = auditStringsFile(file);
    ASSERT_GE(problems.size(), 4U);
    EXPECT_EQ(problems[0], "line 5: expected a value");
    EXPECT_EQ(problems[1], "\"ok\" is given more than once");
    EXPECT_NE(std::ranges::find(problems, "missing \"hero\""), problems.end());
    EXPECT_NE(std::ranges::find(problems,
                                "\"finger.many\" \"%@\" does not fit argument 1, a "
                                "signed integer (%lld)"),
              problems.end());
    EXPECT_EQ(problems.back(), "unknown key \"menu.settings\"");
    // Every key but "ok" and "finger.many" is missing.
    EXPECT_EQ(problems.size(), 2U + (localizationKeys.size() - 2U) + 1U + 1U);
}

}  // namespace
}  // namespace tactora
