#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

#include "advanced/AdvancedTest.h"
#include "core/misfire/MisfireOptions.h"

namespace tactora::testing {
namespace {

using AdvancedSettingsTest = AdvancedTest;

TEST_F(AdvancedSettingsTest, NothingIsShownUntilTheSheetOpens) {
    h.tap(2);
    EXPECT_FALSE(h.advancedView.shown);
    EXPECT_FALSE(advanced().isOpen());
}

TEST_F(AdvancedSettingsTest, OpeningShowsEveryOptionOffAndTheDefaultLimits) {
    advanced().open();

    ASSERT_TRUE(h.advancedView.shown);
    EXPECT_EQ(shown().title, "advanced.title");
    for (const AdvancedOption option :
         {AdvancedOption::quietAfterActivity, AdvancedOption::ignoreLargeContacts,
          AdvancedOption::edgeBands, AdvancedOption::fingertipsOnly,
          AdvancedOption::forgetEarlierActivity, AdvancedOption::ignoreDrumming}) {
        EXPECT_FALSE(group(option).on) << static_cast<int>(option);
    }
    EXPECT_EQ(value(AdvancedField::shortestTap).value, 35);
    EXPECT_EQ(value(AdvancedField::longestTap).value, 300);
    EXPECT_EQ(value(AdvancedField::tolerance).value, 4.5);
    EXPECT_EQ(value(AdvancedField::quietTime).value, 300);
    EXPECT_EQ(value(AdvancedField::edgeBack).value, 12);
    EXPECT_EQ(value(AdvancedField::fingertipSize).value, 1.35);
    EXPECT_TRUE(shown().problem.empty());
    EXPECT_TRUE(shown().tries.empty());
}

TEST_F(AdvancedSettingsTest, EveryFieldSaysWhatItIsInWhatUnitAndWhatItTakes) {
    advanced().open();

    const AdvancedValue& quiet = value(AdvancedField::quietTime);
    EXPECT_EQ(quiet.label, "advanced.quiet.time");
    EXPECT_EQ(quiet.unit, "advanced.unit.ms");
    EXPECT_EQ(quiet.low, 1);
    EXPECT_EQ(quiet.high, 2000);
    EXPECT_EQ(quiet.fractionDigits, 0);
    const AdvancedValue& tolerance = value(AdvancedField::tolerance);
    EXPECT_EQ(tolerance.unit, "advanced.unit.percent");
    EXPECT_EQ(tolerance.fractionDigits, 1);
    EXPECT_EQ(value(AdvancedField::fingertipSize).unit, "");
    EXPECT_EQ(shown().groups.back().title, "advanced.limits");
    EXPECT_FALSE(shown().groups.back().option);
    EXPECT_EQ(shown().recommendedButton, "advanced.recommended");
    EXPECT_EQ(shown().restoreButton, "advanced.restore");
    EXPECT_EQ(shown().doneButton, "advanced.done");
    EXPECT_EQ(AdvancedSettings::openTitle(), "advanced.open");
}

TEST_F(AdvancedSettingsTest, OpeningShowsWhatTheUserKeptEarlier) {
    auto earlier = std::make_shared<MemoryPreferences>();
    MisfireOptions options;
    options.quietAfterActivity = 0.5;
    options.fingertipsOnly = true;
    options.save(*earlier);
    (void)TapThresholds{.shortest = 0.02, .longest = 0.4, .tolerance = 0.06}.save(*earlier);
    ControllerHarness again(earlier);

    again.a().advanced().open();

    const AdvancedSheet& sheet = *again.advancedView.shown;
    EXPECT_TRUE(sheet.groups.at(0).on);
    EXPECT_EQ(sheet.groups.at(0).values.at(0).value, 500);
    EXPECT_TRUE(sheet.groups.at(3).on);
    EXPECT_FALSE(sheet.groups.at(1).on);
    const std::vector<AdvancedValue>& limits = sheet.groups.back().values;
    EXPECT_EQ(limits.at(0).value, 20);
    EXPECT_EQ(limits.at(1).value, 400);
    EXPECT_EQ(limits.at(2).value, 6);
}

TEST_F(AdvancedSettingsTest, TickingAnOptionKeepsItAndAppliesItAtOnce) {
    advanced().open();

    advanced().setOption(AdvancedOption::fingertipsOnly, true);

    EXPECT_TRUE(guard().options().fingertipsOnly);
    EXPECT_TRUE(MisfireOptions::load(*h.defaults).fingertipsOnly);
    EXPECT_TRUE(group(AdvancedOption::fingertipsOnly).on);

    advanced().setOption(AdvancedOption::fingertipsOnly, false);

    EXPECT_FALSE(guard().options().anyOn());
    EXPECT_EQ(MisfireOptions::load(*h.defaults), MisfireOptions::none());
}

TEST_F(AdvancedSettingsTest, TickingDrummingKeepsItAndAppliesItAtOnce) {
    advanced().open();

    advanced().setOption(AdvancedOption::ignoreDrumming, true);

    EXPECT_TRUE(guard().options().ignoreDrumming);
    EXPECT_TRUE(MisfireOptions::load(*h.defaults).ignoreDrumming);
    EXPECT_TRUE(group(AdvancedOption::ignoreDrumming).on);
    EXPECT_EQ(group(AdvancedOption::ignoreDrumming).title, "advanced.drumming");
}

TEST_F(AdvancedSettingsTest, AValueOfAnOptionThatIsOffWaitsForTheOption) {
    advanced().open();
    EXPECT_FALSE(value(AdvancedField::quietTime).enabled);

    advanced().setValue(AdvancedField::quietTime, 500);

    EXPECT_FALSE(guard().options().quietAfterActivity);
    EXPECT_EQ(value(AdvancedField::quietTime).value, 500);

    advanced().setOption(AdvancedOption::quietAfterActivity, true);

    EXPECT_EQ(guard().options().quietAfterActivity, 0.5);
    EXPECT_EQ(MisfireOptions::load(*h.defaults).quietAfterActivity, 0.5);
    EXPECT_TRUE(value(AdvancedField::quietTime).enabled);
}

TEST_F(AdvancedSettingsTest, EdgeBandsAreKeptPerEdge) {
    advanced().open();
    advanced().setOption(AdvancedOption::edgeBands, true);

    advanced().setValue(AdvancedField::edgeFront, 8);
    advanced().setValue(AdvancedField::edgeLeft, 3.5);

    const EdgeBands expected{0.035, 0.06, 0.08, 0.12};
    EXPECT_EQ(guard().options().edgeBands, expected);
    EXPECT_EQ(MisfireOptions::load(*h.defaults).edgeBands, expected);
}

TEST_F(AdvancedSettingsTest, TheFingertipSizeMattersOnlyToTheOptionsThatJudgeBySize) {
    advanced().open();
    EXPECT_FALSE(value(AdvancedField::fingertipSize).enabled);

    advanced().setOption(AdvancedOption::ignoreLargeContacts, true);
    EXPECT_TRUE(value(AdvancedField::fingertipSize).enabled);
    advanced().setValue(AdvancedField::fingertipSize, 2.5);

    EXPECT_EQ(guard().options().largestFingertip, 2.5);
    EXPECT_EQ(MisfireOptions::load(*h.defaults).largestFingertip, 2.5);
}

TEST_F(AdvancedSettingsTest, ALongerLongestTapMakesALongerTouchATap) {
    h.workspace.active = false;
    h.tap(1, 0.4);
    ASSERT_NE(h.c().state().lastGesture, "tap 1");
    advanced().open();

    advanced().setValue(AdvancedField::longestTap, 500);
    h.tap(1, 0.4);

    EXPECT_EQ(guard().thresholds().longest, 0.5);
    EXPECT_EQ(TapThresholds::load(*h.defaults).longest, 0.5);
    EXPECT_EQ(h.c().state().lastGesture, "tap 1");
}

TEST_F(AdvancedSettingsTest, AValueOutOfItsRangeIsRefusedAndChangesNothing) {
    advanced().open();
    advanced().setValue(AdvancedField::longestTap, 400);

    advanced().setValue(AdvancedField::longestTap, 1200);

    EXPECT_EQ(shown().problem, "advanced.refused.longest");
    EXPECT_EQ(value(AdvancedField::longestTap).value, 400);
    EXPECT_EQ(guard().thresholds().longest, 0.4);
    EXPECT_EQ(TapThresholds::load(*h.defaults).longest, 0.4);
}

TEST_F(AdvancedSettingsTest, EveryFieldRefusesWhatLiesOutsideItsRange) {
    advanced().open();
    const auto before = h.defaults->values();
    const struct {
        AdvancedField field;
        double value;
        const char* problem;
    } cases[] = {
        {AdvancedField::quietTime, 0, "advanced.refused.quiet"},
        {AdvancedField::quietTime, 2001, "advanced.refused.quiet"},
        {AdvancedField::edgeBack, -1, "advanced.refused.edge"},
        {AdvancedField::edgeRight, 50.1, "advanced.refused.edge"},
        {AdvancedField::fingertipSize, 0.04, "advanced.refused.size"},
        {AdvancedField::fingertipSize, 101, "advanced.refused.size"},
        {AdvancedField::shortestTap, 9, "advanced.refused.shortest"},
        {AdvancedField::shortestTap, 201, "advanced.refused.shortest"},
        {AdvancedField::longestTap, 99, "advanced.refused.longest"},
        {AdvancedField::tolerance, 0.4, "advanced.refused.tolerance"},
        {AdvancedField::tolerance, 20.1, "advanced.refused.tolerance"},
    };
    for (const auto& refused : cases) {
        advanced().setValue(refused.field, refused.value);
        EXPECT_EQ(shown().problem, refused.problem) << refused.value;
    }
    EXPECT_EQ(h.defaults->values(), before);
    EXPECT_EQ(guard().options(), MisfireOptions::none());
    EXPECT_EQ(guard().thresholds(), TapThresholds{});
}

TEST_F(AdvancedSettingsTest, WhatIsNotANumberIsRefused) {
    advanced().open();

    advanced().setValue(AdvancedField::tolerance, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(shown().problem, "advanced.refused.tolerance");
    advanced().setValue(AdvancedField::shortestTap, std::numeric_limits<double>::infinity());
    EXPECT_EQ(shown().problem, "advanced.refused.shortest");

    EXPECT_EQ(guard().thresholds(), TapThresholds{});
}

TEST_F(AdvancedSettingsTest, TheShortestTapMustBeShorterThanTheLongest) {
    advanced().open();
    advanced().setValue(AdvancedField::longestTap, 150);

    advanced().setValue(AdvancedField::shortestTap, 150);

    EXPECT_EQ(shown().problem, "advanced.refused.order");
    EXPECT_EQ(guard().thresholds().shortest, 0.035);

    advanced().setValue(AdvancedField::shortestTap, 149);

    EXPECT_TRUE(shown().problem.empty());
    EXPECT_EQ(guard().thresholds().shortest, 0.149);
    EXPECT_EQ(TapThresholds::load(*h.defaults).shortest, 0.149);
}

TEST_F(AdvancedSettingsTest, ValuesAreRoundedToTheDigitsTheFieldShows) {
    advanced().open();

    advanced().setValue(AdvancedField::tolerance, 5.04);
    advanced().setValue(AdvancedField::longestTap, 412.6);

    EXPECT_EQ(value(AdvancedField::tolerance).value, 5.0);
    EXPECT_EQ(guard().thresholds().tolerance, 0.05);
    EXPECT_EQ(guard().thresholds().longest, 0.413);
    EXPECT_EQ(TapThresholds::load(*h.defaults), guard().thresholds());
}

TEST_F(AdvancedSettingsTest, TheEndsOfEveryRangeAreKeptAndReadBackTheSame) {
    advanced().open();
    advanced().setOption(AdvancedOption::quietAfterActivity, true);
    advanced().setOption(AdvancedOption::edgeBands, true);
    for (const AdvancedField field :
         {AdvancedField::quietTime, AdvancedField::edgeLeft, AdvancedField::edgeRight,
          AdvancedField::edgeFront, AdvancedField::edgeBack, AdvancedField::fingertipSize,
          AdvancedField::tolerance}) {
        for (const double end : {value(field).low, value(field).high}) {
            advanced().setValue(field, end);
            EXPECT_TRUE(shown().problem.empty()) << static_cast<int>(field) << " " << end;
            EXPECT_EQ(MisfireOptions::load(*h.defaults), guard().options()) << end;
            EXPECT_EQ(TapThresholds::load(*h.defaults), guard().thresholds()) << end;
        }
    }
    advanced().setValue(AdvancedField::shortestTap, value(AdvancedField::shortestTap).low);
    advanced().setValue(AdvancedField::longestTap, value(AdvancedField::longestTap).high);
    advanced().setValue(AdvancedField::shortestTap, value(AdvancedField::shortestTap).high);
    EXPECT_TRUE(shown().problem.empty());
    EXPECT_EQ(TapThresholds::load(*h.defaults), guard().thresholds());
    advanced().setValue(AdvancedField::shortestTap, value(AdvancedField::shortestTap).low);
    advanced().setValue(AdvancedField::longestTap, value(AdvancedField::longestTap).low);
    EXPECT_TRUE(shown().problem.empty());
    EXPECT_EQ(TapThresholds::load(*h.defaults), guard().thresholds());
}

TEST_F(AdvancedSettingsTest, TheNextChangeClearsARefusal) {
    advanced().open();
    advanced().setValue(AdvancedField::quietTime, 5000);
    ASSERT_FALSE(shown().problem.empty());

    advanced().setOption(AdvancedOption::forgetEarlierActivity, true);

    EXPECT_TRUE(shown().problem.empty());
}

TEST_F(AdvancedSettingsTest, RecommendedSwitchesOnTheRecommendedCombination) {
    advanced().open();
    advanced().setValue(AdvancedField::longestTap, 450);

    advanced().recommend();

    EXPECT_EQ(guard().options(), MisfireOptions::recommended());
    EXPECT_EQ(MisfireOptions::load(*h.defaults), MisfireOptions::recommended());
    EXPECT_EQ(guard().thresholds().longest, 0.45);
    const MisfireOptions recommended = MisfireOptions::recommended();
    EXPECT_EQ(group(AdvancedOption::fingertipsOnly).on, recommended.fingertipsOnly);
    EXPECT_EQ(group(AdvancedOption::edgeBands).on, recommended.edgeBands.has_value());
}

TEST_F(AdvancedSettingsTest, RestoreDefaultsTurnsEveryOptionOffAndTheLimitsBack) {
    advanced().open();
    advanced().recommend();
    advanced().setOption(AdvancedOption::ignoreLargeContacts, true);
    advanced().setValue(AdvancedField::fingertipSize, 3);
    advanced().setValue(AdvancedField::shortestTap, 20);
    advanced().setValue(AdvancedField::tolerance, 8);

    advanced().restoreDefaults();

    EXPECT_EQ(guard().options(), MisfireOptions::none());
    EXPECT_EQ(guard().thresholds(), TapThresholds{});
    EXPECT_TRUE(h.defaults->values().empty() ||
                (MisfireOptions::load(*h.defaults) == MisfireOptions::none() &&
                 TapThresholds::load(*h.defaults).isDefault()));
    for (const char* key :
         {"misfire.quietAfterActivity", "misfire.ignoreLargeContacts", "misfire.edgeBands",
          "misfire.fingertipsOnly", "misfire.forgetEarlierActivity", "misfire.largestFingertip",
          "misfire.ignoreDrumming", "tap.shortest", "tap.longest", "tap.tolerance"}) {
        EXPECT_FALSE(h.defaults->integer(key) || h.defaults->string(key)) << key;
    }
    EXPECT_EQ(value(AdvancedField::quietTime).value, 300);
    EXPECT_EQ(value(AdvancedField::edgeBack).value, 12);
}

TEST_F(AdvancedSettingsTest, OpeningAgainForgetsARefusalAndTheTries) {
    advanced().open();
    advanced().setValue(AdvancedField::quietTime, 5000);
    h.tap(1);
    advanced().close();

    advanced().open();

    EXPECT_TRUE(shown().problem.empty());
    EXPECT_TRUE(shown().tries.empty());
}

}  // namespace
}  // namespace tactora::testing
