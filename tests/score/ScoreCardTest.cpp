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

TouchLabel gestureLabel(double start, double end, MoreGestureSlot slot) {
    TouchLabel label{start, end, TouchIntent::gesture};
    label.slot = slot;
    return label;
}

Firing moreFiring(MoreGestureSlot slot, std::int64_t fingers, double time) {
    return {TouchIntent::gesture, fingers, time, time, slot};
}

TEST(ScoreCard, CountsEachFurtherGestureByItsSlot) {
    ScoreCard card;
    card.add({gestureLabel(1.0, 1.3, MoreGestureSlot::swipe2Up),
              gestureLabel(3.0, 3.3, MoreGestureSlot::swipe2Up),
              gestureLabel(5.0, 5.3, MoreGestureSlot::swipe2Up)},
             {moreFiring(MoreGestureSlot::swipe2Up, 2, 1.2),
              moreFiring(MoreGestureSlot::swipe2Down, 2, 3.2)},
             3600);
    const MoreFigures& up = card.more().at(moreslot::index(MoreGestureSlot::swipe2Up));
    EXPECT_EQ(up.intended, 3U);
    EXPECT_EQ(up.recognised, 1U);
    EXPECT_EQ(up.wrong, 1U);  // a swipe the other way
    EXPECT_EQ(up.fired, 1U);
    EXPECT_EQ(up.falsePositives, 0U);
    EXPECT_NEAR(up.recall(), 1.0 / 3.0, 1e-9);
    const MoreFigures& down = card.more().at(moreslot::index(MoreGestureSlot::swipe2Down));
    EXPECT_EQ(down.fired, 1U);
    EXPECT_EQ(down.falsePositives, 1U);  // on a touch meant as another gesture
    EXPECT_TRUE(card.hasMore());
    // The taps and clicks know nothing of it.
    EXPECT_EQ(card.total().intended, 0U);
    EXPECT_EQ(card.falsePositives(), 0U);
}

TEST(ScoreCard, AFurtherGestureOnAnAccidentIsItsFalsePositiveOnly) {
    ScoreCard card;
    card.add({accidentLabel(1.0, 2.0, AccidentKind::shortScroll)},
             {moreFiring(MoreGestureSlot::swipe1Up, 1, 1.5),
              moreFiring(MoreGestureSlot::swipe1Up, 1, 7.0)},
             1800);
    const MoreFigures& up = card.more().at(moreslot::index(MoreGestureSlot::swipe1Up));
    EXPECT_EQ(up.falsePositives, 2U);  // on the accident, and outside every touch
    EXPECT_EQ(card.accidents().at(static_cast<std::size_t>(AccidentKind::shortScroll)).fired, 0U);
    EXPECT_EQ(card.falsePositives(), 0U);
    EXPECT_EQ(card.unlabelledFirings(), 0U);
}

TEST(ScoreCard, ARegionsTapIsTheOneFingerTapItIs) {
    ScoreCard card;
    const Firing onTap{TouchIntent::tap, 1, 1.11, 1.19, MoreGestureSlot::tapLeft};
    const Firing onPalm{TouchIntent::tap, 1, 3.1, 3.18, MoreGestureSlot::tapRight};
    const Firing onHold{TouchIntent::tap, 1, 5.1, 5.18, MoreGestureSlot::tapLeft};
    card.add({tapLabel(1.0, 1.1, 1), accidentLabel(3.0, 3.1, AccidentKind::palm),
              gestureLabel(5.0, 6.0, MoreGestureSlot::tapHold)},
             {onTap, onPalm, onHold, moreFiring(MoreGestureSlot::tapHold, 1, 5.5)}, 3600);
    // As the one-finger tap: meant, and a palm's false positive.
    EXPECT_EQ(card.gestures()[0].recognised, 1U);
    EXPECT_EQ(card.falsePositives(), 1U);
    const MoreFigures& left = card.more().at(moreslot::index(MoreGestureSlot::tapLeft));
    EXPECT_EQ(left.fired, 2U);
    EXPECT_EQ(left.falsePositives, 0U);  // the meant tap, and the hold's leading tap
    EXPECT_EQ(card.more().at(moreslot::index(MoreGestureSlot::tapRight)).falsePositives, 1U);
    const MoreFigures& hold = card.more().at(moreslot::index(MoreGestureSlot::tapHold));
    EXPECT_EQ(hold.recognised, 1U);
    EXPECT_EQ(hold.wrong, 1U);  // its leading tap took effect as well
}

TEST(ScoreCard, WithoutFurtherGesturesThereIsNothingOfThem) {
    ScoreCard card;
    card.add({tapLabel(1.0, 1.1, 1)}, {{TouchIntent::tap, 1, 1.11, 1.19}}, 60);
    EXPECT_FALSE(card.hasMore());
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
