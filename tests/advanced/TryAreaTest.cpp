#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "advanced/AdvancedTest.h"
#include "core/advanced/TryArea.h"

namespace tactora::testing {
namespace {

using Lines = std::vector<std::string>;

class TryAreaTest : public AdvancedTest {
  protected:
    void SetUp() override {
        AdvancedTest::SetUp();
        advanced().open();
    }

    // A click with `fingers` resting, told to the observers as the main queue runs.
    void click(std::int32_t fingers) {
        h.rest(fingers);
        h.queue.advance(0.05);
        FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
        (void)h.send(down);
        h.queue.runReady();
        h.queue.advance(0.05);
        FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
        (void)h.send(up);
        h.queue.runReady();
        h.frame(0);
    }
};

TEST_F(TryAreaTest, ATapIsShownAcceptedWithItsFingerCount) {
    h.tap(2);

    EXPECT_EQ(tries(), Lines{"ok tap 2"});
    EXPECT_TRUE(shown().tries.front().accepted);
    EXPECT_EQ(h.advancedView.announcements, Lines{"ok tap 2"});
}

TEST_F(TryAreaTest, AClickWithFingersRestingIsShownAcceptedAndItsTouchAddsNothing) {
    h.assign(slot::forClick(2), 5);

    click(2);

    EXPECT_EQ(tries(), Lines{"ok click 2"});
}

TEST_F(TryAreaTest, AClickLeftToTheSystemIsShownToo) {
    click(1);

    EXPECT_EQ(tries(), Lines{"ok click 1"});
}

TEST_F(TryAreaTest, ATouchHeldTooLongIsRejectedWithItsReason) {
    h.tap(2, 0.5);

    EXPECT_EQ(tries(), Lines{"no (2 fingers): reason.too_long"});
    EXPECT_FALSE(shown().tries.front().accepted);
}

TEST_F(TryAreaTest, EveryReasonOfTheRecogniserIsShown) {
    h.tap(1, 0.01);
    h.frame(1, 0.5F);
    h.queue.advance(0.05);
    h.frame(1, 0.7F);
    h.queue.advance(0.05);
    h.frame(0);
    h.tap(5);

    EXPECT_EQ(tries(), (Lines{"no (5 fingers): reason.too_many_fingers",
                              "no (1 finger): reason.moved", "no (1 finger): reason.too_short"}));
}

TEST_F(TryAreaTest, ATouchInAnEdgeBandIsRejectedOnceTheOptionIsOn) {
    tapAt(1, 0.02F);
    ASSERT_EQ(tries(), Lines{"ok tap 1"});

    advanced().setOption(AdvancedOption::edgeBands, true);
    tapAt(1, 0.02F);

    EXPECT_EQ(tries().front(), "no: reason.edge_band");
}

TEST_F(TryAreaTest, APalmAloneIsRejectedOnceOnlyFingertipsCount) {
    advanced().setOption(AdvancedOption::fingertipsOnly, true);
    const std::vector<Finger> palm{Finger(1, 0.5, 0.2)};
    const std::vector<std::optional<ContactShape>> shape{ContactShape{.size = 4.0F}};

    h.c().receive(palm, shape);
    h.queue.advance(0.1);
    h.c().receive(palm, shape);
    h.c().receive({}, {});

    EXPECT_EQ(tries(), Lines{"no: reason.large_contact"});
}

TEST_F(TryAreaTest, AFingertipBesideAPalmStillTaps) {
    advanced().setOption(AdvancedOption::fingertipsOnly, true);
    const std::vector<Finger> touch{Finger(1, 0.5, 0.2), Finger(2, 0.5, 0.8)};
    const std::vector<std::optional<ContactShape>> shapes{ContactShape{.size = 4.0F},
                                                          ContactShape{.size = 0.8F}};

    h.c().receive(touch, shapes);
    h.queue.advance(0.1);
    h.c().receive({}, {});

    EXPECT_EQ(tries(), Lines{"ok tap 1"});
}

TEST_F(TryAreaTest, ATouchWithAPalmIsRejectedOnceLargeContactsAreIgnored) {
    advanced().setOption(AdvancedOption::ignoreLargeContacts, true);
    const std::vector<Finger> touch{Finger(1, 0.5, 0.2), Finger(2, 0.5, 0.8)};
    const std::vector<std::optional<ContactShape>> shapes{ContactShape{.size = 4.0F},
                                                          ContactShape{.size = 0.8F}};

    h.c().receive(touch, shapes);
    h.queue.advance(0.1);
    h.c().receive({}, {});

    EXPECT_EQ(tries(), Lines{"no (2 fingers): reason.large_contact"});
}

TEST_F(TryAreaTest, ATouchThatBeginsWhileTheButtonIsHeldBelongsToTheClick) {
    advanced().setOption(AdvancedOption::forgetEarlierActivity, true);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    (void)h.send(down);
    h.queue.runReady();

    h.tap(1);

    EXPECT_EQ(tries(), Lines{"no (1 finger): reason.during_press"});
}

TEST_F(TryAreaTest, ATapRightAfterAScrollIsRejectedOnceTheQuietTimeIsOn) {
    advanced().setOption(AdvancedOption::quietAfterActivity, true);
    advanced().setOption(AdvancedOption::forgetEarlierActivity, true);
    FakeTapEvent scroll = h.mouseEvent(event::scrollWheel);
    (void)h.send(scroll);
    h.queue.runReady();
    h.queue.advance(0.1);

    h.tap(1);

    ASSERT_FALSE(tries().empty());
    EXPECT_EQ(tries().front(), "no (1 finger): reason.after_activity");
}

TEST_F(TryAreaTest, AClickJustAfterATapTurnsItsLineIntoTheReason) {
    h.tap(1);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    (void)h.send(down);
    h.queue.runReady();
    h.queue.advance(Controller::tapDelay + 0.01);

    EXPECT_EQ(tries(), Lines{"tap 1 not run: reason.click_after"});
    EXPECT_TRUE(shown().tries.front().accepted);
}

TEST_F(TryAreaTest, WhileThisProgramIsActiveTapsAreRecognisedButTheirActionsDoNotRun) {
    h.workspace.active = true;
    h.assign(slot::forTap(2), 5);

    h.tap(2);
    h.queue.advance(Controller::tapDelay + 0.01);

    EXPECT_EQ(tries(), Lines{"tap 2 not run: reason.gestures_off"});
    EXPECT_TRUE(h.poster.posted.empty());
}

TEST_F(TryAreaTest, WithAnotherApplicationInFrontTheActionRuns) {
    h.assign(slot::forTap(2), 5);

    h.tap(2);
    h.queue.advance(Controller::tapDelay + 0.01);

    EXPECT_EQ(tries(), Lines{"ok tap 2"});
    EXPECT_FALSE(h.poster.posted.empty());
}

TEST_F(TryAreaTest, AnActionRefusedByAProfileChangeSaysSo) {
    const Uuid first = h.c().profiles().activeID();
    h.c().profiles().add("Second", false);
    h.tap(1);
    h.c().switchProfileAutomatically(first);
    h.queue.advance(Controller::tapDelay + 0.01);

    ASSERT_FALSE(tries().empty());
    EXPECT_EQ(tries().front(), "tap 1 not run: reason.profile_changed");
}

TEST_F(TryAreaTest, TheNewestComesFirstAndOnlyTheLastFewAreKept) {
    for (std::int32_t fingers = 1; fingers <= 4; ++fingers) {
        h.tap(fingers);
        h.queue.advance(0.2);
    }
    for (std::int32_t fingers = 1; fingers <= 4; ++fingers) {
        h.tap(fingers, 0.5);
        h.queue.advance(0.2);
    }

    ASSERT_EQ(shown().tries.size(), TryArea::capacity);
    EXPECT_EQ(tries().front(), "no (4 fingers): reason.too_long");
    EXPECT_EQ(tries().back(), "ok tap 3");
    EXPECT_EQ(h.advancedView.announcements.back(), "no (4 fingers): reason.too_long");
}

TEST_F(TryAreaTest, NothingIsTriedOnceTheSheetIsClosed) {
    advanced().close();
    const std::size_t told = h.advancedView.announcements.size();

    h.tap(2);
    h.tap(2, 0.5);

    EXPECT_EQ(h.advancedView.announcements.size(), told);
}

}  // namespace
}  // namespace tactora::testing
