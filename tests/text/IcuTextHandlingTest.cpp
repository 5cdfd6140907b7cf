#include "linux/IcuTextHandling.h"

#include <gtest/gtest.h>
#include <unicode/uloc.h>

#include <cstdint>
#include <initializer_list>
#include <string>

namespace tactora {
namespace {

TEST(IcuTextHandlingTest, UpperCaseStaysLocaleIndependentUnderATurkishDefault) {
    UErrorCode status = U_ZERO_ERROR;
    const std::string previous = uloc_getDefault();
    uloc_setDefault("tr_TR", &status);
    ASSERT_TRUE(U_SUCCESS(status));
    const IcuTextHandling handling;
    EXPECT_EQ(handling.upperCased("istanbul"), "ISTANBUL");
    uloc_setDefault(previous.c_str(), &status);
}

struct Expected {
    std::int64_t value;
    PluralCategory category;
};

void expectCategories(std::string_view language, std::initializer_list<Expected> expected) {
    const IcuTextHandling handling;
    for (const Expected& entry : expected) {
        EXPECT_EQ(handling.pluralCategory(language, entry.value), entry.category)
            << language << " " << entry.value;
    }
}

TEST(IcuTextHandlingTest, EnglishAndGermanHaveOneAndOther) {
    for (const std::string_view language : {"en", "de"}) {
        expectCategories(language, {{0, PluralCategory::other},
                                    {1, PluralCategory::one},
                                    {2, PluralCategory::other},
                                    {-1, PluralCategory::one}});
    }
}

TEST(IcuTextHandlingTest, BrazilianPortugueseAndFrenchCountZeroAsOne) {
    for (const std::string_view language : {"pt-BR", "fr"}) {
        expectCategories(language, {{0, PluralCategory::one},
                                    {1, PluralCategory::one},
                                    {2, PluralCategory::other},
                                    {4, PluralCategory::other}});
    }
    expectCategories("fr", {{1'000'000, PluralCategory::many}});
}

TEST(IcuTextHandlingTest, RussianAndArabicUseMoreCategories) {
    expectCategories("ru", {{1, PluralCategory::one},
                            {2, PluralCategory::few},
                            {5, PluralCategory::many},
                            {21, PluralCategory::one}});
    expectCategories("ar", {{0, PluralCategory::zero},
                            {1, PluralCategory::one},
                            {2, PluralCategory::two},
                            {3, PluralCategory::few},
                            {11, PluralCategory::many},
                            {100, PluralCategory::other}});
}

TEST(IcuTextHandlingTest, JapaneseAndChineseHaveOnlyOther) {
    expectCategories("ja", {{1, PluralCategory::other}, {2, PluralCategory::other}});
    expectCategories("zh-Hans", {{1, PluralCategory::other}});
}

TEST(IcuTextHandlingTest, UnknownLanguageGivesOther) {
    expectCategories("", {{1, PluralCategory::other}});
    expectCategories("qq", {{1, PluralCategory::other}});
}

TEST(IcuTextHandlingTest, ThePlatformTextHandlingIsIcus) {
    EXPECT_NE(dynamic_cast<const IcuTextHandling*>(makePlatformTextHandling().get()), nullptr);
}

}  // namespace
}  // namespace tactora
