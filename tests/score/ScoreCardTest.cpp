#include <gtest/gtest.h>

#include <vector>

#include "core/score/ScoreCard.h"

namespace tactora {
namespace {

TouchLabel tapLabel(double start, double end, std::int64_t fingers) {
    return {start, end, TouchIntent::tap, fingers};
}

TouchLabel clickLabel(double start, double end, std::int64_t fingers) {
    return {start, end, TouchIntent::click, fingers};
}

TouchLabel accidentLabel(double start, double end, AccidentKind kind) {
    return {start, end, TouchIntent::accident, 0, kind};
}

TEST(ScoreCard, CountsTheIntendedGesturesThatTookEffect) {
    ScoreCard card;
    card.add({tapLabel(1.0, 1.1, 2), tapLabel(3.0, 3.1, 2), clickLabel(5.0, 5.4, 1)},
             {{TouchIntent::tap, 2, 1.11, 1.19}, {TouchIntent::click, 1, 5.2, 5.2}}, 3600);
    const GestureFigures taps = card.gestures()[ScoreCard::gestureIndex(TouchIntent::tap, 2)];
    EXPECT_EQ(taps.intended, 2U);
    EXPECT_EQ(taps.recognised, 1U);
    EXPECT_DOUBLE_EQ(taps.recall(), 0.5);
    ASSERT_EQ(taps.latencies.size(), 1U);
    EXPECT_NEAR(taps.latencies[0], 0.09, 1e-9);
    EXPECT_EQ(card.total().intended, 3U);
    EXPECT_EQ(card.total().recognised, 2U);
    EXPECT_EQ(card.falsePositives(), 0U);
}

TEST(ScoreCard, AnotherGestureInsideAnIntendedOneIsWrong) {
    ScoreCard card;
    card.add({clickLabel(1.0, 1.5, 1)}, {{TouchIntent::click, 2, 1.2, 1.2}}, 60);
    const GestureFigures clicks = card.gestures()[ScoreCard::gestureIndex(TouchIntent::click, 1)];
    EXPECT_EQ(clicks.recognised, 0U);
    EXPECT_EQ(clicks.wrong, 1U);
}

TEST(ScoreCard, AFiringBelongsToTheInnermostTouch) {
    ScoreCard card;
    // A palm rests from 1 to 4; a tap is made at 2; the palm's lift completes a tap at 4.01.
    card.add({accidentLabel(1.0, 4.0, AccidentKind::palm), tapLabel(2.0, 2.1, 1)},
             {{TouchIntent::tap, 1, 2.11, 2.19}, {TouchIntent::tap, 1, 4.01, 4.09}}, 3600);
    EXPECT_EQ(card.total().recognised, 1U);
    EXPECT_EQ(card.accidents()[static_cast<std::size_t>(AccidentKind::palm)].fired, 1U);
    EXPECT_EQ(card.falsePositives(), 1U);
    EXPECT_DOUBLE_EQ(card.falsePositivesPerHour(), 1.0);
}

TEST(ScoreCard, AnAccidentThatFiresTwiceIsOneFalsePositive) {
    ScoreCard card;
    card.add({accidentLabel(1.0, 2.0, AccidentKind::drumming)},
             {{TouchIntent::tap, 1, 1.2, 1.3}, {TouchIntent::tap, 2, 1.6, 1.7}}, 1800);
    EXPECT_EQ(card.falsePositives(), 1U);
    EXPECT_DOUBLE_EQ(card.falsePositivesPerHour(), 2.0);
}

TEST(ScoreCard, AFiringOutsideEveryTouchIsAFalsePositive) {
    ScoreCard card;
    card.add({tapLabel(1.0, 1.1, 1)}, {{TouchIntent::tap, 1, 1.2, 1.3}}, 3600);
    EXPECT_EQ(card.unlabelledFirings(), 1U);
    EXPECT_EQ(card.falsePositives(), 1U);
}

TEST(Percentile, TakesTheNearestRank) {
    EXPECT_FALSE(percentile({}, 0.5));
    EXPECT_EQ(percentile({3, 1, 2}, 0.5), 2);
    EXPECT_EQ(percentile({3, 1, 2}, 0.95), 3);
    EXPECT_EQ(percentile({3, 1, 2}, 0), 1);
}

}  // namespace
}  // namespace tactora
