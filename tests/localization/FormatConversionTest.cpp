#include "core/localization/FormatConversion.h"

#include <gtest/gtest.h>

#include <vector>

namespace tactora {
namespace {

std::vector<ConversionType> typesIn(std::string_view text) {
    std::vector<ConversionType> types;
    for (const FormatConversion& conversion : conversionsIn(text)) {
        types.push_back(conversion.type);
    }
    return types;
}

TEST(FormatConversionTest, ClassifiesTheSupportedConversions) {
    using enum ConversionType;
    EXPECT_EQ(typesIn("%@ %d %i %ld %lld %u %lu %llu %%"),
              (std::vector{string, signedInteger, signedInteger, signedInteger, signedInteger,
                           unsignedInteger, unsignedInteger, unsignedInteger, percent}));
    EXPECT_EQ(typesIn("%5d %hd %hhi %qd %zd %D %x %X %o %O %U %-8@ %.3@ %*d %1$*2$d"),
              (std::vector{signedInteger, signedInteger, signedInteger, signedInteger,
                           signedInteger, signedInteger, unsignedInteger, unsignedInteger,
                           unsignedInteger, unsignedInteger, unsignedInteger, string, string,
                           signedInteger, signedInteger}));
}

TEST(FormatConversionTest, EverythingElseIsUnsupported) {
    using enum ConversionType;
    EXPECT_EQ(typesIn("%s %jd %l@ %'d %1$*d %*1$d %5000d %"),
              (std::vector{unsupported, unsupported, unsupported, unsupported, unsupported,
                           unsupported, unsupported, unsupported}));
}

TEST(FormatConversionTest, ReadsFlagsWidthPrecisionAndLength) {
    const FormatConversion conversion = readConversion("%-+ 0#12.5llx", 0);
    EXPECT_EQ(conversion.type, ConversionType::unsignedInteger);
    EXPECT_TRUE(conversion.leftAligned && conversion.plusSign && conversion.spaceSign &&
                conversion.zeroPadded && conversion.alternate);
    EXPECT_EQ(conversion.width.value, 12U);
    EXPECT_EQ(conversion.precision.value, 5U);
    EXPECT_EQ(conversion.lengthModifier, LengthModifier::ll);
    EXPECT_EQ(conversion.letter, 'x');
    EXPECT_EQ(conversion.length, 13U);
}

TEST(FormatConversionTest, StarsNameTheirArgument) {
    const FormatConversion conversion = readConversion("%3$*1$.*2$d", 0);
    EXPECT_EQ(conversion.position, 3U);
    EXPECT_TRUE(conversion.width.fromArgument());
    EXPECT_EQ(conversion.width.position, 1U);
    EXPECT_EQ(conversion.precision.position, 2U);
    EXPECT_TRUE(conversion.takesFieldSizeArgument());
}

TEST(FormatConversionTest, ReportsOffsetLengthAndPosition) {
    const std::vector<FormatConversion> conversions = conversionsIn("ab %2$lld c");
    ASSERT_EQ(conversions.size(), 1U);
    EXPECT_EQ(conversions[0].offset, 3U);
    EXPECT_EQ(conversions[0].length, 6U);
    EXPECT_EQ(conversions[0].position, 2U);
    EXPECT_TRUE(conversions[0].takesArgument());
}

TEST(FormatConversionTest, HugePositionSaturates) {
    const FormatConversion conversion = readConversion("%123456789012345678901234$@", 0);
    EXPECT_EQ(conversion.position, FormatConversion::maxPosition);
    EXPECT_EQ(conversion.type, ConversionType::string);
}

TEST(FormatConversionTest, TrailingPercentHasLengthOne) {
    const FormatConversion conversion = readConversion("50%", 2);
    EXPECT_EQ(conversion.length, 1U);
    EXPECT_EQ(conversion.type, ConversionType::unsupported);
    EXPECT_FALSE(conversion.takesArgument());
}

}  // namespace
}  // namespace tactora
