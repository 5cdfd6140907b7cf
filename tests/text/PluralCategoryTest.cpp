#include "core/text/PluralCategory.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

TEST(PluralCategoryTest, NamesRoundTrip) {
    for (const std::string_view name : {"zero", "one", "two", "few", "many", "other"}) {
        const std::optional<PluralCategory> category = pluralCategoryNamed(name);
        ASSERT_TRUE(category.has_value()) << name;
        EXPECT_EQ(pluralCategoryName(*category), name);
    }
}

TEST(PluralCategoryTest, OtherTextsNameNoCategory) {
    EXPECT_EQ(pluralCategoryNamed("One"), std::nullopt);
    EXPECT_EQ(pluralCategoryNamed(""), std::nullopt);
    EXPECT_EQ(pluralCategoryNamed("NSStringFormatSpecTypeKey"), std::nullopt);
}

}  // namespace
}  // namespace tactora
