#include "core/text/TextHandling.h"

#include <gtest/gtest.h>

#include <string>

// The platform's text handling (ICU off macOS, Foundation on a Mac), against what the platform
// answers for many scripts and emoji sequences.
namespace tactora {
namespace {

const TextHandling& text() {
    return textHandling();
}

TEST(TextHandlingTest, UpperCasesLatinLettersWithTheirAccents) {
    EXPECT_EQ(text().upperCased("k"), "K");
    EXPECT_EQ(text().upperCased("çãéøå"), "ÇÃÉØÅ");
    EXPECT_EQ(text().upperCased("e\u0301"), "E\u0301");
}

TEST(TextHandlingTest, SharpSBecomesTwoLetters) {
    EXPECT_EQ(text().upperCased("ß"), "SS");
    EXPECT_EQ(text().upperCased("straße"), "STRASSE");
}

TEST(TextHandlingTest, UpperCaseIgnoresTurkishRules) {
    EXPECT_EQ(text().upperCased("i"), "I");
    EXPECT_EQ(text().upperCased("ı"), "I");
}

TEST(TextHandlingTest, UpperCasesGreekKeepingItsAccents) {
    EXPECT_EQ(text().upperCased("ς"), "Σ");
    EXPECT_EQ(text().upperCased("σ"), "Σ");
    EXPECT_EQ(text().upperCased("όλος"), "ΌΛΟΣ");
}

TEST(TextHandlingTest, UpperCasesOtherScriptsAndExpandsLigatures) {
    EXPECT_EQ(text().upperCased("жёлтый"), "ЖЁЛТЫЙ");
    EXPECT_EQ(text().upperCased("և"), "ԵՒ");
    EXPECT_EQ(text().upperCased("ﬁ"), "FI");
    EXPECT_EQ(text().upperCased("ǆ"), "Ǆ");
    EXPECT_EQ(text().upperCased("ｑ"), "Ｑ");
}

TEST(TextHandlingTest, UpperCaseLeavesCaselessTextAlone) {
    EXPECT_EQ(text().upperCased("1 ; \u00A0 日本 한국 👍🏽 \U0001F1E7\U0001F1F7"),
              "1 ; \u00A0 日本 한국 👍🏽 \U0001F1E7\U0001F1F7");
    EXPECT_EQ(text().upperCased(""), "");
}

TEST(TextHandlingTest, MalformedBytesBecomeReplacementCharacters) {
    EXPECT_EQ(text().upperCased("a\xFF"
                                "b"),
              "A\uFFFDB");
    EXPECT_EQ(text().characterCount("a\xC3"), 2U);
    EXPECT_EQ(text().leadingCharacters("\xFF\xFE", 1), "\uFFFD");
    EXPECT_EQ(text().trimmed(" \xFF "), "\uFFFD");
}

TEST(TextHandlingTest, CountsLettersWithCombiningMarksAsOne) {
    EXPECT_EQ(text().characterCount(""), 0U);
    EXPECT_EQ(text().characterCount("abc"), 3U);
    EXPECT_EQ(text().characterCount("e\u0301\u0327"), 1U);
    EXPECT_EQ(text().characterCount("ệ"), 1U);
}

TEST(TextHandlingTest, CountsEmojiSequencesAsOne) {
    // A family, a thumb with a skin tone, people holding hands in two skin tones, a keycap and
    // the flag of England.
    EXPECT_EQ(text().characterCount("\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466"),
              1U);
    EXPECT_EQ(text().characterCount("\U0001F44D\U0001F3FD"), 1U);
    EXPECT_EQ(
        text().characterCount("\U0001F9D1\U0001F3FB\u200D\U0001F91D\u200D\U0001F9D1\U0001F3FF"),
        1U);
    EXPECT_EQ(text().characterCount("1\uFE0F\u20E3"), 1U);
    EXPECT_EQ(text().characterCount(
                  "\U0001F3F4\U000E0067\U000E0062\U000E0065\U000E006E\U000E0067\U000E007F"),
              1U);
}

TEST(TextHandlingTest, RegionalIndicatorsPairIntoFlags) {
    EXPECT_EQ(text().characterCount("\U0001F1E7\U0001F1F7\U0001F1EF\U0001F1F5"), 2U);
    EXPECT_EQ(text().characterCount("\U0001F1E7\U0001F1F7\U0001F1EF"), 2U);
}

TEST(TextHandlingTest, CountsSyllablesAndClustersOfOtherScripts) {
    EXPECT_EQ(text().characterCount("한국어"), 3U);
    EXPECT_EQ(text().characterCount("\u1100\u1161\u11A8"), 1U);  // conjoining jamo
    EXPECT_EQ(text().characterCount("हिंदी"), 2U);
    EXPECT_EQ(text().characterCount("กำ"), 1U);
    EXPECT_EQ(text().characterCount("مرحبا"), 5U);
    EXPECT_EQ(text().characterCount("日本語"), 3U);
    EXPECT_EQ(text().characterCount("\r\n"), 1U);
}

TEST(TextHandlingTest, LeadingCharactersNeverCutInsideOne) {
    EXPECT_EQ(text().leadingCharacters("e\u0301e\u0301", 1), "e\u0301");
    EXPECT_EQ(text().leadingCharacters("a\U0001F469\U0001F3FD\u200D\U0001F4BBb", 2),
              "a\U0001F469\U0001F3FD\u200D\U0001F4BB");
    EXPECT_EQ(text().leadingCharacters("\U0001F1E7\U0001F1F7\U0001F1EF\U0001F1F5", 1),
              "\U0001F1E7\U0001F1F7");
    EXPECT_EQ(text().leadingCharacters("한국어", 2), "한국");
}

TEST(TextHandlingTest, LeadingCharactersOfAShortTextIsAllOfIt) {
    EXPECT_EQ(text().leadingCharacters("abc", 10), "abc");
    EXPECT_EQ(text().leadingCharacters("abc", 0), "");
    EXPECT_EQ(text().leadingCharacters("", 3), "");
}

TEST(TextHandlingTest, TrimsWhiteSpaceAndLineBreaksAtBothEnds) {
    EXPECT_EQ(text().trimmed(" \t\n\r\v\f\u00A0\u2003\u3000a b\u2028\u2029\u0085\u202F "), "a b");
    EXPECT_EQ(text().trimmed("  inner  spaces  "), "inner  spaces");
    EXPECT_EQ(text().trimmed(" \n "), "");
}

TEST(TextHandlingTest, FormatCharactersAreNotWhiteSpace) {
    EXPECT_EQ(text().trimmed("\u200Bx\u200B"), "\u200Bx\u200B");
    EXPECT_EQ(text().trimmed("\uFEFFx"), "\uFEFFx");
}

}  // namespace
}  // namespace tactora
