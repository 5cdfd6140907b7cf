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

TEST(FormatterTest, LongConversionsUseAllSixtyFourBits) {
    const std::int64_t large = std::numeric_limits<std::int64_t>::max();
    for (const std::string_view conversion : {"%ld", "%lld", "%qd", "%zd", "%li", "%qi"}) {
        EXPECT_EQ(format(conversion, {integer(large)}), "9223372036854775807") << conversion;
    }
    EXPECT_EQ(format("%lld", {integer(std::numeric_limits<std::int64_t>::min())}),
              "-9223372036854775808");
}

TEST(FormatterTest, LengthModifiersReadTheirWidthOfTheArgument) {
    const std::int64_t value = 0x1'2345'6789;  // 4886718345
    EXPECT_EQ(format("%d", {integer(value)}), "591751049");
    EXPECT_EQ(format("%D", {integer(4294967297)}), "1");
    EXPECT_EQ(format("%hd", {integer(value)}), "26505");
    EXPECT_EQ(format("%hhd", {integer(value)}), "-119");
    EXPECT_EQ(format("%hhd", {integer(255)}), "-1");
    EXPECT_EQ(format("%hu", {integer(-1)}), "65535");
    EXPECT_EQ(format("%hhu", {integer(-1)}), "255");
    EXPECT_EQ(format("%u", {integer(-1)}), "4294967295");
    EXPECT_EQ(format("%d", {integer(std::numeric_limits<std::int64_t>::max())}), "-1");
}

TEST(FormatterTest, UnsignedConversionsReadTheBitsAsUnsigned) {
    for (const std::string_view conversion : {"%lu", "%llu", "%qu", "%zu"}) {
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
    EXPECT_EQ(format("%s %f %c %p %n %S %C %a %e %g %d", {integer(1)}),
              "%s %f %c %p %n %S %C %a %e %g 1");
}

TEST(FormatterTest, HexadecimalAndOctal) {
    EXPECT_EQ(format("%x %X %o %O", {integer(255), integer(255), integer(8), integer(8)}),
              "ff FF 10 10");
    EXPECT_EQ(format("%x", {integer(-1)}), "ffffffff");
    EXPECT_EQ(format("%llx", {integer(-1)}), "ffffffffffffffff");
    EXPECT_EQ(format("%hhX", {integer(0x1AB)}), "AB");
    EXPECT_EQ(format("%lo", {integer(-1)}), "1777777777777777777777");
}

TEST(FormatterTest, AlternateFormPrefixesOctalAndHexadecimal) {
    EXPECT_EQ(format("%#x|%#X|%#o|%#x|%#o|%#.0o",
                     {integer(255), integer(255), integer(8), integer(0), integer(0), integer(0)}),
              "0xff|0XFF|010|0|0|0");
    EXPECT_EQ(format("%#5o|%#08x", {integer(8), integer(255)}), "  010|0x0000ff");
}

TEST(FormatterTest, WidthPadsWithSpacesOnTheLeftOrTheRight) {
    EXPECT_EQ(format("[%5d][%-5d][%2d]", {integer(42), integer(42), integer(12345)}),
              "[   42][42   ][12345]");
    EXPECT_EQ(format("[%5lld]", {integer(-42)}), "[  -42]");
}

TEST(FormatterTest, ZeroFlagFillsAfterTheSign) {
    EXPECT_EQ(
        format("[%05d][%05d][%+05d][%-05d]", {integer(42), integer(-42), integer(42), integer(42)}),
        "[00042][-0042][+0042][42   ]");
}

TEST(FormatterTest, PrecisionIsTheLeastNumberOfDigitsAndDisablesZeroFill) {
    EXPECT_EQ(format("[%.3d][%.3d][%08.3d][%.0d][%.d][%5.0d]",
                     {integer(7), integer(-7), integer(7), integer(0), integer(0), integer(0)}),
              "[007][-007][     007][][][     ]");
}

TEST(FormatterTest, SignFlags) {
    EXPECT_EQ(format("[%+d][% d][%+ d][% d][%+u]",
                     {integer(3), integer(3), integer(3), integer(-3), integer(3)}),
              "[+3][ 3][+3][-3][3]");
}

TEST(FormatterTest, StringWidthAndPrecision) {
    EXPECT_EQ(format("[%6@][%-6@][%.2@][%6.2@][%.0@]",
                     {text("abc"), text("abc"), text("abc"), text("abc"), text("abc")}),
              "[   abc][abc   ][ab][    ab][]");
}

TEST(FormatterTest, StringWidthAndPrecisionCountUtf16UnitsAndNeverCutACharacter) {
    EXPECT_EQ(format("[%4@]", {text("é日")}), "[  é日]");
    EXPECT_EQ(format("[%4@]", {text("\U0001F44D")}), "[  \U0001F44D]");
    EXPECT_EQ(format("[%.1@]", {text("\U0001F44Dx")}), "[]");
    EXPECT_EQ(format("[%.2@]", {text("\U0001F44Dx")}), "[\U0001F44D]");
    EXPECT_EQ(format("[%.1@]", {text("日本")}), "[日]");
}

TEST(FormatterTest, StarTakesTheWidthOrPrecisionFromAnArgument) {
    EXPECT_EQ(format("[%*d]", {integer(4), integer(7)}), "[   7]");
    EXPECT_EQ(format("[%-*d]", {integer(4), integer(7)}), "[7   ]");
    EXPECT_EQ(format("[%*d]", {integer(-4), integer(7)}), "[7   ]");
    EXPECT_EQ(format("[%.*d]", {integer(3), integer(7)}), "[007]");
    EXPECT_EQ(format("[%.*d]", {integer(-3), integer(7)}), "[7]");
    EXPECT_EQ(format("[%*.*@]", {integer(3), integer(1), text("xyz")}), "[  x]");
    EXPECT_EQ(format("[%2$*1$lld]", {integer(3), integer(7)}), "[  7]");
}

TEST(FormatterTest, StarWithoutAnIntegerLeavesTheConversionAsWritten) {
    EXPECT_EQ(format("[%*d] %@", {text("4"), integer(7), text("next")}), "[%*d] next");
    EXPECT_EQ(format("[%*d]", {integer(4)}), "[%*d]");
    EXPECT_EQ(format("[%1$*d]", {integer(4), integer(7)}), "[%1$*d]");
    EXPECT_EQ(format("[%*2$d]", {integer(4), integer(7)}), "[%*2$d]");
}

TEST(FormatterTest, HugeWidthsAndPrecisionsAreLeftAsWritten) {
    EXPECT_EQ(format("%5000d|%.99999999999999999999d", {integer(1), integer(1)}),
              "%5000d|%.99999999999999999999d");
    EXPECT_EQ(format("[%*d]", {integer(1'000'000), integer(1)}), "[%*d]");
    EXPECT_EQ(format("[%4096d]", {integer(1)}).size(), 4098U);
}

TEST(FormatterTest, GroupingAndOtherLengthModifiersAreLeftAsWritten) {
    EXPECT_EQ(format("%'d %jd %td %Ld %l@ %hh@ %lll", {integer(1)}),
              "%'d %jd %td %Ld %l@ %hh@ %lll");
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
