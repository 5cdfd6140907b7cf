#include "core/localization/PluralExpansion.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/localization/Formatter.h"

namespace tactora {
namespace {

// English-like rules: 1 is "one", 2 is "two" (to tell the categories apart), the rest "other".
PluralCategory testCategory(std::int64_t value) {
    if (value == 1) {
        return PluralCategory::one;
    }
    return value == 2 ? PluralCategory::two : PluralCategory::other;
}

PluralFormat fingers(std::string format) {
    PluralFormat plural{.format = std::move(format), .variables = {}};
    plural.variables["f"] = {
        .valueType = "lld",
        .forms = {{PluralCategory::one, "%lld finger"}, {PluralCategory::other, "%lld fingers"}}};
    return plural;
}

std::optional<std::string> expanded(const PluralFormat& plural,
                                    const std::vector<FormatArgument>& arguments) {
    const std::optional<ExpandedText> text = expandPluralFormat(plural, arguments, testCategory);
    if (!text) {
        return std::nullopt;
    }
    return formatText(text->format, text->arguments);
}

FormatArgument integer(std::int64_t value) {
    return makeFormatArgument(value);
}
FormatArgument text(std::string_view value) {
    return makeFormatArgument(value);
}

TEST(PluralExpansionTest, ChoosesTheFormOfTheValuesCategory) {
    EXPECT_EQ(expanded(fingers("%#@f@"), {integer(1)}), "1 finger");
    EXPECT_EQ(expanded(fingers("%#@f@"), {integer(3)}), "3 fingers");
}

TEST(PluralExpansionTest, AMissingCategoryFallsBackToOther) {
    EXPECT_EQ(expanded(fingers("%#@f@"), {integer(2)}), "2 fingers");
    EXPECT_EQ(expanded(fingers("%#@f@"), {integer(0)}), "0 fingers");
}

TEST(PluralExpansionTest, ZeroFormServesTheValueZeroInAnyLanguage) {
    PluralFormat plural = fingers("%#@f@");
    plural.variables["f"].forms[PluralCategory::zero] = "no fingers";
    EXPECT_EQ(expanded(plural, {integer(0)}), "no fingers");
    EXPECT_EQ(expanded(plural, {integer(1)}), "1 finger");
}

TEST(PluralExpansionTest, SequentialConversionsAroundAVariableKeepTheirArguments) {
    EXPECT_EQ(expanded(fingers("%@: %#@f@, %@"), {text("Tap"), integer(1), text("Copy")}),
              "Tap: 1 finger, Copy");
}

TEST(PluralExpansionTest, PositionalVariablesPickTheirArgument) {
    EXPECT_EQ(expanded(fingers("%2$@ — %1$#@f@"), {integer(4), text("Tap")}), "Tap — 4 fingers");
}

TEST(PluralExpansionTest, FormsMayLeaveTheNumberOutOrRepeatItPositionally) {
    PluralFormat plural = fingers("%#@f@");
    plural.variables["f"].forms[PluralCategory::one] = "one finger";
    plural.variables["f"].forms[PluralCategory::other] = "%1$lld fingers (%1$lld)";
    EXPECT_EQ(expanded(plural, {integer(1)}), "one finger");
    EXPECT_EQ(expanded(plural, {integer(5)}), "5 fingers (5)");
}

TEST(PluralExpansionTest, PercentSignsInAFormStayLiteral) {
    PluralFormat plural = fingers("%#@f@ %@");
    plural.variables["f"].forms[PluralCategory::other] = "%lld%% %@";
    EXPECT_EQ(expanded(plural, {integer(5), text("x")}), "5% %@ x");
}

TEST(PluralExpansionTest, UnresolvableVariablesGiveNothing) {
    EXPECT_EQ(expanded(fingers("%#@g@"), {integer(1)}), std::nullopt);
    EXPECT_EQ(expanded(fingers("%#@f@"), {text("1")}), std::nullopt);
    EXPECT_EQ(expanded(fingers("%#@f@ %#@f@"), {integer(1)}), std::nullopt);
    EXPECT_EQ(expanded(fingers("%0$#@f@"), {integer(1)}), std::nullopt);
    EXPECT_EQ(expanded(fingers("%1$@ %#@f@"), {text("a"), integer(1)}), std::nullopt);
    PluralFormat noOther = fingers("%#@f@");
    noOther.variables["f"].forms.erase(PluralCategory::other);
    EXPECT_EQ(expanded(noOther, {integer(3)}), std::nullopt);
}

TEST(PluralExpansionTest, TextThatIsNoVariableStaysAsWritten) {
    EXPECT_EQ(expanded(fingers("%#@ %#@@ %#@f"), {integer(1)}), "%#@ %#@@ %#@f");
}

TEST(PluralExpansionTest, ReadsVariableReferences) {
    const std::optional<VariableReference> sequential = readVariableReference("%#@fingers@ x");
    ASSERT_TRUE(sequential);
    EXPECT_EQ(sequential->name, "fingers");
    EXPECT_EQ(sequential->length, 11U);
    EXPECT_EQ(sequential->position, std::nullopt);
    const std::optional<VariableReference> positional = readVariableReference("%12$#@n@");
    ASSERT_TRUE(positional);
    EXPECT_EQ(positional->position, 12U);
    EXPECT_EQ(readVariableReference("%lld"), std::nullopt);
    EXPECT_EQ(readVariableReference("%1#@n@"), std::nullopt);
}

}  // namespace
}  // namespace tactora
