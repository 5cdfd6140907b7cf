#include "core/keepon/KeepOn.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "core/profiles/MemoryPreferences.h"

namespace tactora {
namespace {

class KeepOnTest : public ::testing::Test {
  protected:
    std::shared_ptr<MemoryPreferences> defaults = std::make_shared<MemoryPreferences>();
};

TEST_F(KeepOnTest, StartsOffAndWritesNothing) {
    const KeepOn keepOn(defaults);
    EXPECT_FALSE(keepOn.enabled());
    EXPECT_FALSE(keepOn.wanted());
    EXPECT_FALSE(keepOn.shouldArm());
    EXPECT_TRUE(defaults->values().empty());
}

TEST_F(KeepOnTest, ReadsBothChoicesFromAnEarlierRun) {
    defaults->setInteger(KeepOn::enabledKey, 1);
    defaults->setInteger(KeepOn::wantedKey, 1);
    const KeepOn keepOn(defaults);
    EXPECT_TRUE(keepOn.enabled());
    EXPECT_TRUE(keepOn.wanted());
    EXPECT_TRUE(keepOn.shouldArm());
}

TEST_F(KeepOnTest, AnythingButOneReadsAsOff) {
    defaults->setString(KeepOn::enabledKey, "1");
    defaults->setInteger(KeepOn::wantedKey, 1);
    EXPECT_FALSE(KeepOn(defaults).enabled());
    defaults->setInteger(KeepOn::enabledKey, 2);
    EXPECT_FALSE(KeepOn(defaults).enabled());
    defaults->setData(KeepOn::enabledKey, {1});
    EXPECT_FALSE(KeepOn(defaults).enabled());
    // A wish without keep-on chosen is no wish.
    defaults->setInteger(KeepOn::enabledKey, 0);
    EXPECT_FALSE(KeepOn(defaults).wanted());
}

TEST_F(KeepOnTest, TheUsersChoiceIsStoredOnlyWhileChosen) {
    KeepOn keepOn(defaults);
    keepOn.userChose(true);
    EXPECT_FALSE(defaults->values().contains(KeepOn::wantedKey));
    keepOn.setEnabled(true, true);
    EXPECT_EQ(defaults->integer(KeepOn::enabledKey), 1);
    EXPECT_EQ(defaults->integer(KeepOn::wantedKey), 1);
    keepOn.userChose(false);
    EXPECT_EQ(defaults->integer(KeepOn::wantedKey), 0);
    EXPECT_FALSE(keepOn.shouldArm());
}

TEST_F(KeepOnTest, CoolDownsClimbThenTheLimitStops) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    EXPECT_EQ(keepOn.tapDisabled(100), 1.0);
    EXPECT_EQ(keepOn.waiting(), KeepOnWait::coolDown);
    EXPECT_FALSE(keepOn.shouldArm());
    EXPECT_TRUE(keepOn.coolDownEnded(keepOn.epoch()));
    EXPECT_TRUE(keepOn.shouldArm());
    EXPECT_EQ(keepOn.tapDisabled(110), 5.0);
    EXPECT_TRUE(keepOn.coolDownEnded(keepOn.epoch()));
    EXPECT_EQ(keepOn.tapDisabled(159.9), std::nullopt);
    EXPECT_EQ(keepOn.waiting(), KeepOnWait::stopped);
    EXPECT_FALSE(keepOn.shouldArm());
    EXPECT_EQ(keepOn.tapDisabled(160), std::nullopt);
}

TEST_F(KeepOnTest, DisablesAMinuteApartClimbToTheLastStepAndStay) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    EXPECT_EQ(keepOn.tapDisabled(0), 1.0);
    EXPECT_EQ(keepOn.tapDisabled(61), 5.0);
    EXPECT_EQ(keepOn.tapDisabled(122), 30.0);
    EXPECT_EQ(keepOn.tapDisabled(183), 30.0);
    // Long quiet: the ladder starts again.
    EXPECT_EQ(keepOn.tapDisabled(183 + KeepOn::ladderMemory + 1), 1.0);
}

TEST_F(KeepOnTest, AnyChoiceOfTheUserMakesAScheduledReArmMoot) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    ASSERT_TRUE(keepOn.tapDisabled(0));
    const auto epoch = keepOn.epoch();
    keepOn.userChose(false);
    EXPECT_FALSE(keepOn.coolDownEnded(epoch));
    EXPECT_FALSE(keepOn.shouldArm());
}

TEST_F(KeepOnTest, ATickEndsAStopAndForgetsEarlierDisables) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    keepOn.tapDisabled(0);
    keepOn.tapDisabled(1);
    keepOn.tapDisabled(2);
    ASSERT_EQ(keepOn.waiting(), KeepOnWait::stopped);
    keepOn.userChose(true);
    EXPECT_TRUE(keepOn.shouldArm());
    EXPECT_EQ(keepOn.tapDisabled(3), 1.0);
}

TEST_F(KeepOnTest, WakeRetriesFollowTheScheduleOncePerWake) {
    KeepOn keepOn(defaults);
    EXPECT_EQ(keepOn.nextWakeRetry(), std::nullopt);
    keepOn.woke();
    EXPECT_EQ(keepOn.nextWakeRetry(), 1.0);
    const auto first = keepOn.wakeEpoch();
    EXPECT_EQ(keepOn.nextWakeRetry(), 3.0);
    EXPECT_FALSE(keepOn.wakeRetryCurrent(first));
    EXPECT_EQ(keepOn.nextWakeRetry(), 8.0);
    EXPECT_EQ(keepOn.nextWakeRetry(), std::nullopt);
    EXPECT_EQ(keepOn.nextWakeRetry(), std::nullopt);

    keepOn.woke();
    EXPECT_EQ(keepOn.nextWakeRetry(), 1.0);
    const auto pending = keepOn.wakeEpoch();
    keepOn.sensorConnected();
    EXPECT_FALSE(keepOn.wakeRetryCurrent(pending));
    EXPECT_EQ(keepOn.nextWakeRetry(), std::nullopt);
}

TEST_F(KeepOnTest, WaitingIsReportedOnlyWhenItChanges) {
    KeepOn keepOn(defaults);
    EXPECT_TRUE(keepOn.setWaiting(KeepOnWait::sensor));
    EXPECT_FALSE(keepOn.setWaiting(KeepOnWait::sensor));
    EXPECT_TRUE(keepOn.setWaiting(KeepOnWait::accessibility));
}

TEST_F(KeepOnTest, TickingKeepOnWhileTheSwitchIsOffKeepsGesturesOff) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, false);
    EXPECT_TRUE(keepOn.enabled());
    EXPECT_FALSE(keepOn.wanted());
    EXPECT_FALSE(keepOn.shouldArm());
    EXPECT_EQ(defaults->integer(KeepOn::wantedKey), 0);
}

TEST_F(KeepOnTest, UntickingAndReTickingKeepOnStartsTheLadderAgain) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    EXPECT_EQ(keepOn.tapDisabled(0), 1.0);
    EXPECT_TRUE(keepOn.coolDownEnded(keepOn.epoch()));
    EXPECT_EQ(keepOn.tapDisabled(70), 5.0);
    keepOn.setEnabled(false, false);
    keepOn.setEnabled(true, true);
    EXPECT_TRUE(keepOn.shouldArm());
    EXPECT_EQ(keepOn.tapDisabled(80), 1.0);
}

TEST_F(KeepOnTest, ATickDuringACoolDownLeavesLaterAutomaticReArmsPossible) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    ASSERT_EQ(keepOn.tapDisabled(0), 1.0);
    const auto scheduled = keepOn.epoch();
    keepOn.userChose(true);
    EXPECT_EQ(keepOn.waiting(), KeepOnWait::nothing);
    EXPECT_FALSE(keepOn.coolDownEnded(scheduled));
    // Later the sensor goes (a wake, a reconnect) and comes back: gestures are re-armed.
    keepOn.setWaiting(KeepOnWait::sensor);
    EXPECT_TRUE(keepOn.shouldArm());
    keepOn.setWaiting(KeepOnWait::accessibility);
    EXPECT_TRUE(keepOn.shouldArm());
}

TEST_F(KeepOnTest, DisablesAbout400SecondsApartClimbTheLadder) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    EXPECT_EQ(keepOn.tapDisabled(0), 1.0);
    EXPECT_TRUE(keepOn.coolDownEnded(keepOn.epoch()));
    EXPECT_EQ(keepOn.tapDisabled(400), 5.0);
    EXPECT_TRUE(keepOn.coolDownEnded(keepOn.epoch()));
    EXPECT_EQ(keepOn.tapDisabled(800), 30.0);
    EXPECT_EQ(keepOn.waiting(), KeepOnWait::coolDown);
}

TEST_F(KeepOnTest, DisableTickDisableASecondLaterLeavesTheFirstTimerStale) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    ASSERT_EQ(keepOn.tapDisabled(0), 1.0);
    const auto first = keepOn.epoch();
    keepOn.userChose(true);
    ASSERT_EQ(keepOn.tapDisabled(1), 1.0);
    // The first cool-down's timer fires now: it is stale and changes nothing.
    EXPECT_FALSE(keepOn.coolDownEnded(first));
    EXPECT_EQ(keepOn.waiting(), KeepOnWait::coolDown);
    EXPECT_FALSE(keepOn.shouldArm());
    EXPECT_TRUE(keepOn.coolDownEnded(keepOn.epoch()));
    EXPECT_TRUE(keepOn.shouldArm());
}

TEST_F(KeepOnTest, ALateDisableNoticeAfterTheStopChangesNothing) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    keepOn.tapDisabled(0);
    keepOn.tapDisabled(1);
    ASSERT_EQ(keepOn.tapDisabled(2), std::nullopt);
    const auto epoch = keepOn.epoch();
    EXPECT_EQ(keepOn.tapDisabled(100), std::nullopt);
    EXPECT_EQ(keepOn.tapDisabled(2000), std::nullopt);
    EXPECT_EQ(keepOn.waiting(), KeepOnWait::stopped);
    EXPECT_EQ(keepOn.epoch(), epoch);
    EXPECT_FALSE(keepOn.shouldArm());
    keepOn.userChose(true);
    EXPECT_TRUE(keepOn.shouldArm());
    EXPECT_EQ(keepOn.tapDisabled(2001), 1.0);
}

TEST_F(KeepOnTest, UntickingEndsAnAnnouncedWaitOnly) {
    KeepOn keepOn(defaults);
    keepOn.setEnabled(true, true);
    keepOn.setWaiting(KeepOnWait::sensor);
    EXPECT_TRUE(keepOn.userChose(false));
    EXPECT_EQ(keepOn.waiting(), KeepOnWait::nothing);
    EXPECT_FALSE(keepOn.userChose(false));

    keepOn.userChose(true);
    keepOn.setWaiting(KeepOnWait::eventTap);
    EXPECT_FALSE(keepOn.userChose(true));
    EXPECT_TRUE(keepOn.setEnabled(false, false));
    EXPECT_EQ(keepOn.waiting(), KeepOnWait::nothing);

    keepOn.setEnabled(true, true);
    ASSERT_TRUE(keepOn.tapDisabled(0));
    EXPECT_FALSE(keepOn.userChose(false));
}

TEST_F(KeepOnTest, OnlyWaitsTheStatusLineNamesAreAnnounced) {
    EXPECT_TRUE(KeepOn::waitIsAnnounced(KeepOnWait::sensor));
    EXPECT_TRUE(KeepOn::waitIsAnnounced(KeepOnWait::accessibility));
    EXPECT_TRUE(KeepOn::waitIsAnnounced(KeepOnWait::inputMonitoring));
    EXPECT_TRUE(KeepOn::waitIsAnnounced(KeepOnWait::eventTap));
    EXPECT_FALSE(KeepOn::waitIsAnnounced(KeepOnWait::nothing));
    EXPECT_FALSE(KeepOn::waitIsAnnounced(KeepOnWait::coolDown));
    EXPECT_FALSE(KeepOn::waitIsAnnounced(KeepOnWait::stopped));
}

TEST_F(KeepOnTest, AMouseArrivingRetriesLikeAWake) {
    KeepOn keepOn(defaults);
    keepOn.deviceArrived();
    EXPECT_EQ(keepOn.nextWakeRetry(), 1.0);
    EXPECT_EQ(keepOn.nextWakeRetry(), 3.0);
    const auto last = keepOn.wakeEpoch();
    keepOn.deviceArrived();
    EXPECT_FALSE(keepOn.wakeRetryCurrent(last));
    EXPECT_EQ(keepOn.nextWakeRetry(), 1.0);
    keepOn.sensorConnected();
    EXPECT_EQ(keepOn.nextWakeRetry(), std::nullopt);
}

}  // namespace
}  // namespace tactora
