#include "core/text/Whitespace.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

TEST(WhitespaceTest, TrimsSpacesTabsAndLineBreaksAtBothEnds) {
    EXPECT_EQ(trimWhitespaceAndNewlines(" \t\r\n a b \n"), "a b");
}

TEST(WhitespaceTest, TrimsUnicodeSpacesAndSeparators) {
    EXPECT_EQ(trimWhitespaceAndNewlines("\u00A0\u2003\u3000name\u2028\u202F\u0085"), "name");
}

TEST(WhitespaceTest, OnlySpacesLeaveNothing) {
    EXPECT_EQ(trimWhitespaceAndNewlines(" \u2009 "), "");
    EXPECT_EQ(trimWhitespaceAndNewlines(""), "");
}

TEST(WhitespaceTest, ZeroWidthSpaceIsNotWhiteSpace) {
    EXPECT_EQ(trimWhitespaceAndNewlines("\u200B"), "\u200B");
}

}  // namespace
}  // namespace tactora
