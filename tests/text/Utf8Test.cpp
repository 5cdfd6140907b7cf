#include "core/text/Utf8.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

TEST(Utf8Test, ValidTextIsKept) {
    EXPECT_TRUE(utf8::isValid("a é 日 \U0001F44D \uFFFD"));
    EXPECT_EQ(utf8::repaired("a é 日 \U0001F44D"), "a é 日 \U0001F44D");
}

TEST(Utf8Test, EachMalformedByteBecomesAReplacementCharacter) {
    EXPECT_FALSE(utf8::isValid("\xC3"));
    EXPECT_EQ(utf8::repaired("a\xC3"), "a\uFFFD");
    EXPECT_EQ(utf8::repaired("\xE6\x97"), "\uFFFD\uFFFD");
    EXPECT_EQ(utf8::repaired("\xC0\xAF"), "\uFFFD\uFFFD");            // overlong
    EXPECT_EQ(utf8::repaired("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");  // surrogate
}

}  // namespace
}  // namespace tactora
