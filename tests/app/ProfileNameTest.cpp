#include "core/app/ProfileName.h"

#include <gtest/gtest.h>

#include <string>

#include "core/text/TextHandling.h"

namespace tactora {
namespace {

std::string repeat(const std::string& piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += piece;
    }
    return text;
}

TEST(ProfileNameTest, SpacesOnlyGiveNothing) {
    EXPECT_EQ(profileName("   "), std::nullopt);
    EXPECT_EQ(profileName("\n\u00A0\t"), std::nullopt);
    EXPECT_EQ(profileName(""), std::nullopt);
}

TEST(ProfileNameTest, SeventyCharactersKeepTheFirstSixty) {
    const std::string seventy = repeat("abcdefghij", 7);
    EXPECT_EQ(profileName(seventy), seventy.substr(0, 60));
}

TEST(ProfileNameTest, TheCapCountsAfterTrimming) {
    const std::string sixty(60, 'x');
    EXPECT_EQ(profileName("    " + sixty + "   "), sixty);
}

TEST(ProfileNameTest, CombiningMarksAreNeverSplitFromTheirLetter) {
    const std::string accented = repeat("e\u0301", 61);
    const std::optional<std::string> name = profileName(accented);
    ASSERT_TRUE(name.has_value());
    EXPECT_EQ(*name, repeat("e\u0301", 60));
}

TEST(ProfileNameTest, EmojiAndFlagsAreNeverSplit) {
    const std::string name =
        repeat("a", 59) + "\U0001F469\U0001F3FD\u200D\U0001F4BB" + "\U0001F1E7\U0001F1F7";
    const std::optional<std::string> kept = profileName(name);
    ASSERT_TRUE(kept.has_value());
    EXPECT_EQ(*kept, repeat("a", 59) + "\U0001F469\U0001F3FD\u200D\U0001F4BB");
    EXPECT_EQ(textHandling().characterCount(*kept), 60U);

    const std::string flags = repeat("\U0001F1E7\U0001F1F7", 61);
    EXPECT_EQ(profileName(flags), repeat("\U0001F1E7\U0001F1F7", 60));
}

TEST(ProfileNameTest, InnerSpacesStay) {
    EXPECT_EQ(profileName(" My  work "), "My  work");
}

}  // namespace
}  // namespace tactora
