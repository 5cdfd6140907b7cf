#include "core/reasons/TouchOutcomes.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

GestureNote tap(std::int64_t fingers, double time, ActionIndex action = 5) {
    return {.kind = GestureKind::tap, .fingers = fingers, .action = action, .time = time};
}

TEST(TouchOutcomesTest, AGestureIsAcceptedAtOnce) {
    TouchOutcomes outcomes;

    const auto outcome = outcomes.gesture(tap(2, 1.0));

    ASSERT_TRUE(outcome);
    EXPECT_TRUE(outcome->accepted());
    EXPECT_EQ(outcome->fingers, 2);
}

TEST(TouchOutcomesTest, GesturesOffAtTheMomentOfRecognitionRefusesThatGesture) {
    TouchOutcomes outcomes;
    const auto accepted = outcomes.gesture(tap(2, 1.0));

    const auto refused =
        outcomes.dropped({.reason = DropReason::gesturesOff, .fingers = 2, .time = 1.0});

    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->id, accepted->id);
    EXPECT_EQ(refused->gesture, GestureKind::tap);
    EXPECT_EQ(refused->reason, DropReason::gesturesOff);
    EXPECT_FALSE(refused->accepted());
}

TEST(TouchOutcomesTest, ARefusedActionBelongsToTheGestureWaitingForIt) {
    TouchOutcomes outcomes;
    const auto first = outcomes.gesture(tap(1, 1.0, 5));
    const auto second = outcomes.gesture(tap(2, 1.1, 6));

    const auto refused =
        outcomes.actionDropped({.action = 6, .reason = DropReason::clickAfter, .time = 1.2});

    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->id, second->id);
    EXPECT_NE(refused->id, first->id);
    EXPECT_EQ(refused->fingers, 2);
}

TEST(TouchOutcomesTest, APerformedActionNoLongerWaits) {
    TouchOutcomes outcomes;
    (void)outcomes.gesture(tap(1, 1.0, 5));
    outcomes.actionPerformed({.action = 5,
                              .shortcut = std::nullopt,
                              .origin = ActionOrigin::tap,
                              .fingers = 1,
                              .asButton = std::nullopt,
                              .time = 1.1});

    const auto refused =
        outcomes.actionDropped({.action = 5, .reason = DropReason::switchChanged, .time = 2.0});

    ASSERT_TRUE(refused);
    EXPECT_FALSE(refused->gesture);
    EXPECT_EQ(refused->reason, DropReason::switchChanged);
}

TEST(TouchOutcomesTest, TheEndOfATouchThatClickedAddsNothing) {
    TouchOutcomes outcomes;
    outcomes.frame(true);
    (void)outcomes.gesture({.kind = GestureKind::click, .fingers = 2, .action = 0, .time = 1.0});
    outcomes.frame(false);

    EXPECT_FALSE(outcomes.dropped({.reason = DropReason::clickDuring, .fingers = 2, .time = 1.3}));
}

TEST(TouchOutcomesTest, AClickDuringATouchThatWasNoClickGestureIsTheReason) {
    TouchOutcomes outcomes;
    outcomes.frame(true);
    (void)outcomes.gesture({.kind = GestureKind::click, .fingers = 2, .action = 0, .time = 1.0});
    outcomes.frame(false);
    outcomes.frame(true);
    outcomes.frame(false);

    const auto outcome =
        outcomes.dropped({.reason = DropReason::clickDuring, .fingers = 1, .time = 3.0});

    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->reason, DropReason::clickDuring);
}

TEST(TouchOutcomesTest, ADroppedTouchIsANewOutcome) {
    TouchOutcomes outcomes;
    const auto accepted = outcomes.gesture(tap(1, 1.0));

    const auto dropped =
        outcomes.dropped({.reason = DropReason::tooLong, .fingers = 3, .time = 2.0});

    ASSERT_TRUE(dropped);
    EXPECT_NE(dropped->id, accepted->id);
    EXPECT_FALSE(dropped->gesture);
    EXPECT_EQ(dropped->fingers, 3);
}

}  // namespace
}  // namespace tactora
