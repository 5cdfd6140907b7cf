#include "core/profiles/DefaultsInteger.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "core/profiles/MemoryPreferences.h"

namespace tactora {
namespace {

constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();

TEST(DefaultsIntegerTest, DecimalTextReadsAsItsNumber) {
    EXPECT_EQ(integerFromText("13"), 13);
    EXPECT_EQ(integerFromText("0"), 0);
    EXPECT_EQ(integerFromText("-7"), -7);
    EXPECT_EQ(integerFromText("+6"), 6);
    EXPECT_EQ(integerFromText("007"), 7);
}

TEST(DefaultsIntegerTest, LeadingWhiteSpaceIsSkipped) {
    EXPECT_EQ(integerFromText(" 12"), 12);
    EXPECT_EQ(integerFromText("\t\n\r\v\f 4"), 4);
    EXPECT_EQ(integerFromText("  -2"), -2);
}

TEST(DefaultsIntegerTest, ReadingStopsAtTheFirstCharacterThatIsNoDigit) {
    EXPECT_EQ(integerFromText("12abc"), 12);
    EXPECT_EQ(integerFromText("3.7"), 3);
    EXPECT_EQ(integerFromText("-3.7"), -3);
    EXPECT_EQ(integerFromText("1e2"), 1);
    EXPECT_EQ(integerFromText("7 "), 7);
    EXPECT_EQ(integerFromText("0x10"), 0);
    EXPECT_EQ(integerFromText("4 5"), 4);
}

TEST(DefaultsIntegerTest, TextThatDoesNotBeginWithANumberIsZero) {
    EXPECT_EQ(integerFromText(""), 0);
    EXPECT_EQ(integerFromText("   "), 0);
    EXPECT_EQ(integerFromText("abc"), 0);
    EXPECT_EQ(integerFromText("a12"), 0);
    EXPECT_EQ(integerFromText("-"), 0);
    EXPECT_EQ(integerFromText("+-3"), 0);
    EXPECT_EQ(integerFromText(".5"), 0);
    EXPECT_EQ(integerFromText("١٢"), 0);  // Arabic-Indic digits are not decimal text here
}

TEST(DefaultsIntegerTest, NumbersBeyondTheRangeReadAsItsEnds) {
    EXPECT_EQ(integerFromText("9223372036854775807"), highest);
    EXPECT_EQ(integerFromText("9223372036854775808"), highest);
    EXPECT_EQ(integerFromText("99999999999999999999999"), highest);
    EXPECT_EQ(integerFromText("-9223372036854775808"), lowest);
    EXPECT_EQ(integerFromText("-9223372036854775809"), lowest);
    EXPECT_EQ(integerFromText("-99999999999999999999999"), lowest);
}

TEST(DefaultsIntegerTest, PreferenceReadsIntegersTextsAndEverythingElse) {
    MemoryPreferences preferences;
    preferences.setInteger("integer", -4);
    preferences.setString("text", " 12abc");
    preferences.setString("words", "twelve");
    preferences.setData("bytes", Bytes{'1', '2'});
    EXPECT_EQ(defaultsInteger(preferences, "integer"), -4);
    EXPECT_EQ(defaultsInteger(preferences, "text"), 12);
    EXPECT_EQ(defaultsInteger(preferences, "words"), 0);
    EXPECT_EQ(defaultsInteger(preferences, "bytes"), 0);
    EXPECT_EQ(defaultsInteger(preferences, "missing"), 0);
}

}  // namespace
}  // namespace tactora
