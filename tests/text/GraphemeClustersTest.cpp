#include "core/text/GraphemeClusters.h"

#include <gtest/gtest.h>

#include <string>

namespace tactora {
namespace {

TEST(GraphemeClustersTest, AsciiLettersAreOneEach) {
    EXPECT_EQ(graphemes::count("abc"), 3U);
    EXPECT_EQ(graphemes::prefix("abcdef", 4), "abcd");
    EXPECT_EQ(graphemes::prefix("ab", 4), "ab");
}

TEST(GraphemeClustersTest, CombiningMarksStayWithTheirLetter) {
    const std::string decomposed = "e\u0301\u0323x";  // e, acute, dot below, x
    EXPECT_EQ(graphemes::count(decomposed), 2U);
    EXPECT_EQ(graphemes::prefix(decomposed, 1), "e\u0301\u0323");
}

TEST(GraphemeClustersTest, EmojiWithSkinToneIsOne) {
    EXPECT_EQ(graphemes::count("\U0001F44D\U0001F3FD"), 1U);
}

TEST(GraphemeClustersTest, ZeroWidthJoinerSequenceIsOne) {
    const std::string family = "\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466";
    EXPECT_EQ(graphemes::count(family), 1U);
    EXPECT_EQ(graphemes::count("\U0001F3F3\uFE0F\u200D\U0001F308"), 1U);  // rainbow flag
}

TEST(GraphemeClustersTest, JoinerAfterALetterDoesNotJoinAnEmoji) {
    EXPECT_EQ(graphemes::count("a\u200D\U0001F600"), 2U);
}

TEST(GraphemeClustersTest, RegionalIndicatorsPairIntoFlags) {
    const std::string flags = "\U0001F1E7\U0001F1F7\U0001F1F5\U0001F1F9\U0001F1FA";  // BR PT U
    EXPECT_EQ(graphemes::count(flags), 3U);
    EXPECT_EQ(graphemes::prefix(flags, 1), "\U0001F1E7\U0001F1F7");
}

TEST(GraphemeClustersTest, KeycapAndVariationSelectorsAttach) {
    EXPECT_EQ(graphemes::count("1\uFE0F\u20E3#"), 2U);
}

TEST(GraphemeClustersTest, CarriageReturnLineFeedIsOneAndControlsStandAlone) {
    EXPECT_EQ(graphemes::count("a\r\nb"), 3U);
    EXPECT_EQ(graphemes::count("\n\u0301"), 2U);
}

TEST(GraphemeClustersTest, HangulJamoFormSyllables) {
    EXPECT_EQ(graphemes::count("\u1100\u1161\u11A8"), 1U);  // leading, vowel, trailing
    EXPECT_EQ(graphemes::count("\uAC00\u11A8"), 1U);        // syllable LV + trailing
    EXPECT_EQ(graphemes::count("\uAC01\u1161"), 2U);        // LVT takes no vowel
}

TEST(GraphemeClustersTest, MalformedBytesCountOneEachAndNeverStall) {
    const std::string broken = "a\xC3\xFF\x80z";
    EXPECT_EQ(graphemes::count(broken), 5U);
    EXPECT_EQ(graphemes::prefix(broken, 2), "a\xC3");
}

}  // namespace
}  // namespace tactora
