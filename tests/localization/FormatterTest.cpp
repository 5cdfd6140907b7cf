#include "core/localization/Formatter.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace tactora {
namespace {

std::string format(std::string_view text, const std::vector<FormatArgument>& arguments) {
    return formatText(text, arguments);
}

FormatArgument integer(std::int64_t value) {
    return makeFormatArgument(value);
}
FormatArgument text(std::string_view value) {
    return makeFormatArgument(value);
}

TEST(FormatterTest, StringConversionInsertsTheString) {
    EXPECT_EQ(format("Last gesture: %@.", {text("2-finger tap")}), "Last gesture: 2-finger tap.");
}

TEST(FormatterTest, StringArgumentIsInsertedAsItStands) {
    EXPECT_EQ(format("[%@]", {text("100% %d %@ ·")}), "[100% %d %@ ·]");
}

TEST(FormatterTest, EverySignedIntegerConversionPrintsDecimal) {
    for (const std::string_view conversion : {"%d", "%i", "%ld", "%li", "%lld", "%lli"}) {
        EXPECT_EQ(format(conversion, {integer(-42)}), "-42") << conversion;
    }
}

TEST(FormatterTest, IntegersUseAllSixtyFourBits) {
    const std::int64_t large = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(format("%d", {integer(large)}), "9223372036854775807");
    EXPECT_EQ(format("%lld", {integer(std::numeric_limits<std::int64_t>::min())}),
              "-9223372036854775808");
}

TEST(FormatterTest, UnsignedConversionsReadTheBitsAsUnsigned) {
    for (const std::string_view conversion : {"%u", "%lu", "%llu"}) {
        EXPECT_EQ(format(conversion, {integer(-1)}), "18446744073709551615") << conversion;
        EXPECT_EQ(format(conversion, {integer(7)}), "7") << conversion;
    }
}

TEST(FormatterTest, SequentialConversionsTakeArgumentsInOrder) {
    EXPECT_EQ(format("Fingers: %lld · Last gesture: %@ · Last action: %@",
                     {integer(2), text("tap"), text("Copy")}),
              "Fingers: 2 · Last gesture: tap · Last action: Copy");
}

TEST(FormatterTest, PositionalConversionsPickTheirArgument) {
    EXPECT_EQ(format("%2$@ then %1$lld", {integer(5), text("five")}), "five then 5");
}

TEST(FormatterTest, PositionalConversionMayRepeatAnArgument) {
    EXPECT_EQ(format("%1$@/%1$@", {text("a")}), "a/a");
}

TEST(FormatterTest, DoublePercentIsAPercentSign) {
    EXPECT_EQ(format("100%% of %d", {integer(3)}), "100% of 3");
    EXPECT_EQ(format("%%d", {integer(3)}), "%d");
}

TEST(FormatterTest, TextWithoutConversionsIsUnchanged) {
    EXPECT_EQ(format("Granted · “ok” — é", {integer(1)}), "Granted · “ok” — é");
}

TEST(FormatterTest, MissingArgumentLeavesTheConversionAsWritten) {
    EXPECT_EQ(format("Couldn’t perform “%@” (error %lld).", {text("Show Desktop")}),
              "Couldn’t perform “Show Desktop” (error %lld).");
}

TEST(FormatterTest, NoArgumentsLeaveEveryConversionAsWritten) {
    EXPECT_EQ(format("%d %@ %1$@ %%", {}), "%d %@ %1$@ %");
}

TEST(FormatterTest, ExtraArgumentsAreIgnored) {
    EXPECT_EQ(format("Magic Mouse connected.", {integer(0)}), "Magic Mouse connected.");
    EXPECT_EQ(format("%@", {text("a"), text("b"), integer(3)}), "a");
}

TEST(FormatterTest, IntegerForStringConversionIsLeftAsWritten) {
    EXPECT_EQ(format("[%@]", {integer(3)}), "[%@]");
}

TEST(FormatterTest, StringForIntegerConversionIsLeftAsWritten) {
    EXPECT_EQ(format("[%lld]", {text("three")}), "[%lld]");
}

TEST(FormatterTest, MismatchedSequentialConversionStillTakesItsPosition) {
    EXPECT_EQ(format("%d %@", {text("a"), text("b")}), "%d b");
}

TEST(FormatterTest, UnknownConversionsAreLeftAsWrittenAndTakeNoArgument) {
    EXPECT_EQ(format("%s %f %x %c %p %n %d", {integer(1)}), "%s %f %x %c %p %n 1");
}

TEST(FormatterTest, FlagsWidthsAndPrecisionsAreLeftAsWritten) {
    EXPECT_EQ(format("%5d|%-d|%05lld|%.2d|%*d|%+d|%'d", {integer(1)}),
              "%5d|%-d|%05lld|%.2d|%*d|%+d|%'d");
}

TEST(FormatterTest, OtherLengthModifiersAreLeftAsWritten) {
    EXPECT_EQ(format("%hd %hhd %qd %zd %jd %td %Ld %l@ %lll", {integer(1)}),
              "%hd %hhd %qd %zd %jd %td %Ld %l@ %lll");
}

TEST(FormatterTest, LoneTrailingPercentIsKept) {
    EXPECT_EQ(format("50%", {integer(1)}), "50%");
    EXPECT_EQ(format("%", {integer(1)}), "%");
    EXPECT_EQ(format("%l", {integer(1)}), "%l");
    EXPECT_EQ(format("%1$", {integer(1)}), "%1$");
}

TEST(FormatterTest, PositionZeroIsLeftAsWritten) {
    EXPECT_EQ(format("%0$@", {text("a")}), "%0$@");
}

TEST(FormatterTest, PositionPastTheArgumentsIsLeftAsWritten) {
    EXPECT_EQ(format("%3$@ %1$@", {text("a"), text("b")}), "%3$@ a");
}

TEST(FormatterTest, HugePositionIsLeftAsWritten) {
    const std::string hostile = "%99999999999999999999999999$d";
    EXPECT_EQ(format(hostile, {integer(1)}), hostile);
}

TEST(FormatterTest, FirstConversionDecidesTheStyleAndTheOtherStyleIsLeftAsWritten) {
    EXPECT_EQ(format("%1$@ %@", {text("a"), text("b")}), "a %@");
    EXPECT_EQ(format("%@ %2$@ %@", {text("a"), text("b")}), "a %2$@ b");
}

TEST(FormatterTest, PercentSignsDoNotDecideTheStyle) {
    EXPECT_EQ(format("%% %1$@", {text("a")}), "% a");
}

TEST(FormatterTest, PositionWithPercentLetterIsLeftAsWritten) {
    EXPECT_EQ(format("%1$%", {text("a")}), "%1$%");
}

TEST(FormatterTest, ConversionLetterThatIsNotAsciiKeepsTheTextIntact) {
    EXPECT_EQ(format("%é %d", {integer(4)}), "%é 4");
}

TEST(FormatterTest, EmbeddedNulsPassThrough) {
    const std::string withNul("a\0%d\0b", 6);
    EXPECT_EQ(format(withNul, {integer(9)}), std::string("a\0009\0b", 5));
}

TEST(FormatterTest, RepeatedConversionsOfAHostileTextStayBounded) {
    std::string hostile;
    for (int index = 0; index < 1000; ++index) {
        hostile += "%@%d%s%";
    }
    const std::string result = format(hostile, {text("x"), integer(1)});
    EXPECT_EQ(result.substr(0, 8), "x1%s%@%d");
    EXPECT_LE(result.size(), hostile.size() + 2);
}

}  // namespace
}  // namespace tactora
