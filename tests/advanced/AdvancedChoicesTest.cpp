#include "core/advanced/AdvancedChoices.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

TEST(AdvancedChoicesTest, OptionsThatAreOffShowTheirDefaultValues) {
    const AdvancedChoices choices = AdvancedChoices::from(MisfireOptions::none(), {});

    EXPECT_EQ(choices.value(AdvancedField::quietTime), 300);
    EXPECT_EQ(choices.value(AdvancedField::edgeLeft), 6);
    EXPECT_EQ(choices.value(AdvancedField::edgeFront), 0);
    EXPECT_EQ(choices.value(AdvancedField::edgeBack), 12);
}

TEST(AdvancedChoicesTest, OptionsThatAreOnShowTheirOwnValues) {
    MisfireOptions options;
    options.quietAfterActivity = 0.25;
    options.edgeBands = EdgeBands{0.1, 0.2, 0.03, 0.04};

    const AdvancedChoices choices = AdvancedChoices::from(options, {});

    EXPECT_EQ(choices.value(AdvancedField::quietTime), 250);
    EXPECT_EQ(choices.value(AdvancedField::edgeRight), 20);
    EXPECT_EQ(choices.value(AdvancedField::edgeFront), 3);
}

TEST(AdvancedChoicesTest, SwitchingAnOptionOffAndOnKeepsItsValue) {
    AdvancedChoices choices = AdvancedChoices::from(MisfireOptions::none(), {});
    choices.setOption(AdvancedOption::edgeBands, true);
    ASSERT_FALSE(choices.setValue(AdvancedField::edgeBack, 20));

    choices.setOption(AdvancedOption::edgeBands, false);
    EXPECT_FALSE(choices.options.edgeBands);
    choices.setOption(AdvancedOption::edgeBands, true);

    EXPECT_EQ(choices.options.edgeBands->back, 0.2);
}

TEST(AdvancedChoicesTest, ARefusedValueChangesNothing) {
    const AdvancedChoices before = AdvancedChoices::from(MisfireOptions::recommended(), {});
    AdvancedChoices choices = before;

    EXPECT_EQ(choices.setValue(AdvancedField::edgeLeft, 51), "advanced.refused.edge");
    EXPECT_EQ(choices.setValue(AdvancedField::longestTap, 30), "advanced.refused.longest");
    EXPECT_EQ(choices, before);
}

TEST(AdvancedChoicesTest, TheLimitsFollowTheThresholdsRanges) {
    const AdvancedFieldSpec& shortest = AdvancedChoices::spec(AdvancedField::shortestTap);
    const AdvancedFieldSpec& tolerance = AdvancedChoices::spec(AdvancedField::tolerance);

    EXPECT_DOUBLE_EQ(shortest.low, TapThresholds::shortestLow * 1000);
    EXPECT_DOUBLE_EQ(shortest.high, TapThresholds::shortestHigh * 1000);
    EXPECT_DOUBLE_EQ(tolerance.low, TapThresholds::toleranceLow * 100);
    EXPECT_DOUBLE_EQ(tolerance.high, TapThresholds::toleranceHigh * 100);
}

TEST(AdvancedChoicesTest, OnlyTheQuietTimeAndTheBandsBelongToAnOption) {
    EXPECT_EQ(AdvancedChoices::optionOf(AdvancedField::quietTime),
              AdvancedOption::quietAfterActivity);
    EXPECT_EQ(AdvancedChoices::optionOf(AdvancedField::edgeFront), AdvancedOption::edgeBands);
    EXPECT_FALSE(AdvancedChoices::optionOf(AdvancedField::fingertipSize));
    EXPECT_FALSE(AdvancedChoices::optionOf(AdvancedField::tolerance));
}

}  // namespace
}  // namespace tactora
