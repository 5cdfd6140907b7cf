#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/app/ControllerObserver.h"

namespace tactora::testing {
namespace {

// Writes down every note, one short line each, in the order told.
class NoteTaker final : public ControllerObserver {
  public:
    void frameReceived(const FrameNote& note) override {
        lines.push_back("frame " + std::to_string(note.fingers.size()));
    }
    void gestureRecognised(const GestureNote& note) override {
        lines.push_back((note.kind == GestureKind::tap ? "tap " : "click ") +
                        std::to_string(note.fingers) + " for " + std::to_string(note.action));
    }
    void touchDropped(const TouchDropNote& note) override {
        lines.push_back("dropped " + std::to_string(static_cast<int>(note.reason)) + " of " +
                        std::to_string(note.fingers));
    }
    void actionPerformed(const ActionNote& note) override {
        std::string line = "action " + std::to_string(note.action) + " by " +
                           std::to_string(static_cast<int>(note.origin)) + " of " +
                           std::to_string(note.fingers);
        if (note.asButton) {
            line += " as " + std::to_string(static_cast<int>(*note.asButton));
        }
        lines.push_back(line);
    }
    void actionDropped(const ActionDropNote& note) override {
        lines.push_back("refused " + std::to_string(note.action) + " " +
                        std::to_string(static_cast<int>(note.reason)));
    }
    void wantMouseEvents(bool wanted) { setWantsMouseEvents(wanted); }
    void mouseEventDecided(const MouseEventNote& note) override {
        std::string line = "mouse " + std::to_string(note.type) + " " +
                           std::to_string(static_cast<int>(note.fate));
        if (note.fate == MouseEventFate::rewritten) {
            line += " to " + std::to_string(static_cast<int>(note.rewrittenTo));
        }
        lines.push_back(line);
    }
    void pressesReleased(const PressesReleasedNote& note) override {
        lines.push_back("released " + std::to_string(note.count));
    }
    void switchChanged(const SwitchNote& note) override {
        lines.push_back(std::string("switch ") + (note.on ? "on" : "off") +
                        (note.byUser ? " by user" : " by program"));
    }
    void profileSelected(const ProfileNote& note) override {
        lines.push_back(std::string("profile ") + (note.chosen ? "chosen" : "automatic"));
    }
    void activeChanged(const ActiveNote& note) override {
        lines.push_back(std::string("active ") + (note.active ? "yes" : "no"));
    }

    std::vector<std::string> lines;
};

std::string reason(DropReason why) {
    return std::to_string(static_cast<int>(why));
}

class ControllerObserverTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        h.c().addObserver(notes);
    }
    void TearDown() override { h.c().removeObserver(notes); }

    ControllerHarness h;
    NoteTaker notes;
};

TEST_F(ControllerObserverTest, ATapIsToldAsFramesAGestureAndItsAction) {
    h.assign(5, action::copy);
    h.tap(2);
    h.queue.advance(Controller::tapDelay);

    EXPECT_EQ(notes.lines, (std::vector<std::string>{
                               "frame 2",
                               "frame 0",
                               "tap 2 for " + std::to_string(action::copy),
                               "action " + std::to_string(action::copy) + " by 0 of 2",
                           }));
}

TEST_F(ControllerObserverTest, TouchesThatAreNoTapAreToldWithTheirReason) {
    h.tap(1, 0.5);
    h.tap(1, 0.01);
    h.frame(5);
    h.queue.advance(0.1);
    h.frame(0);
    h.frame(1, 0.2F);
    h.queue.advance(0.05);
    h.frame(1, 0.8F);
    h.queue.advance(0.05);
    h.frame(0);

    std::vector<std::string> dropped;
    for (const std::string& line : notes.lines) {
        if (line.starts_with("dropped")) {
            dropped.push_back(line);
        }
    }
    EXPECT_EQ(dropped, (std::vector<std::string>{
                           "dropped " + reason(DropReason::tooLong) + " of 1",
                           "dropped " + reason(DropReason::tooShort) + " of 1",
                           "dropped " + reason(DropReason::tooManyFingers) + " of 5",
                           "dropped " + reason(DropReason::moved) + " of 1",
                       }));
}

TEST_F(ControllerObserverTest, ATouchThatClickedIsDroppedForTheClick) {
    h.rest(1);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.advance(0.1);
    h.frame(0);

    EXPECT_EQ(notes.lines.back(), "dropped " + reason(DropReason::clickDuring) + " of 1");
}

TEST_F(ControllerObserverTest, ATapWhileGesturesAreOffIsToldAsDropped) {
    h.c().pause();
    notes.lines.clear();
    h.tap(3);

    EXPECT_EQ(notes.lines.back(), "dropped " + reason(DropReason::gesturesOff) + " of 3");
}

TEST_F(ControllerObserverTest, TheGuardSaysWhyItRefusedAnAction) {
    h.assign(5, action::copy);
    h.tap(2);
    h.c().pause();
    h.queue.advance(Controller::tapDelay);
    EXPECT_EQ(notes.lines.back(),
              "refused " + std::to_string(action::copy) + " " + reason(DropReason::switchChanged));

    h.view.enabled = true;
    h.c().toggle();
    h.tap(2);
    h.workspace.frontmost = 4242;
    h.queue.advance(Controller::tapDelay);
    EXPECT_EQ(notes.lines.back(), "refused " + std::to_string(action::copy) + " " +
                                      reason(DropReason::applicationChanged));
}

TEST_F(ControllerObserverTest, AClickRightAfterATapVetoesItsAction) {
    h.assign(4, action::copy);
    h.tap(1);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.advance(Controller::tapDelay);

    EXPECT_EQ(notes.lines.back(),
              "refused " + std::to_string(action::copy) + " " + reason(DropReason::clickAfter));
}

TEST_F(ControllerObserverTest, WhatTheTapDecidedIsToldOnlyAfterItsCallbackReturned) {
    h.assign(1, action::right);
    h.rest(2);
    notes.lines.clear();
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_TRUE(notes.lines.empty());

    h.queue.runReady();
    EXPECT_EQ(notes.lines, (std::vector<std::string>{
                               "click 2 for " + std::to_string(action::right),
                               "action " + std::to_string(action::right) + " by 1 of 2 as 1",
                           }));
}

// Events that come before the main queue runs again join the one task already posted: the
// notes and the released click's action come from it, in the order they happened.
TEST_F(ControllerObserverTest, EventsBeforeTheQueueRunsShareOneTask) {
    notes.wantMouseEvents(true);
    h.assign(2, action::copy);
    h.rest(3);
    h.queue.runReady();
    notes.lines.clear();
    const std::size_t before = h.queue.pending();
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    FakeTapEvent drag = h.mouseEvent(event::leftMouseDragged);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(down);
    h.send(drag);
    h.send(up);
    EXPECT_EQ(h.queue.pending(), before + 1);
    EXPECT_TRUE(notes.lines.empty());
    EXPECT_TRUE(h.poster.keyEvents().empty());

    h.queue.runReady();
    ASSERT_EQ(notes.lines.size(), 5U);
    EXPECT_EQ(notes.lines.back(), "action " + std::to_string(action::copy) + " by 1 of 3");
    EXPECT_EQ(h.poster.keyEvents().size(), 2U);
}

TEST_F(ControllerObserverTest, SwallowedEventsAreToldAndOwnEventsAreNot) {
    notes.wantMouseEvents(true);
    h.assign(2, action::copy);
    h.rest(3);
    notes.lines.clear();
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.runReady();
    EXPECT_EQ(notes.lines.front(), "mouse " + std::to_string(event::leftMouseDown) + " " +
                                       std::to_string(static_cast<int>(MouseEventFate::swallowed)));

    notes.lines.clear();
    FakeTapEvent own(event::leftMouseDown, 0, mouseSender, marker);
    h.send(own);
    h.queue.runReady();
    EXPECT_TRUE(notes.lines.empty());
}

TEST_F(ControllerObserverTest, RewrittenAndPassedEventsAreToldInOrder) {
    notes.wantMouseEvents(true);
    h.assign(1, action::right);
    h.rest(2);
    notes.lines.clear();
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    FakeTapEvent other(event::leftMouseDown, 0, otherSender);
    h.send(down);
    h.send(up);
    h.send(other);
    h.queue.runReady();

    const auto fate = [](MouseEventFate f) { return std::to_string(static_cast<int>(f)); };
    EXPECT_EQ(notes.lines, (std::vector<std::string>{
                               "mouse " + std::to_string(event::leftMouseDown) + " " +
                                   fate(MouseEventFate::rewritten) + " to 1",
                               "click 2 for " + std::to_string(action::right),
                               "action " + std::to_string(action::right) + " by 1 of 2 as 1",
                               "mouse " + std::to_string(event::leftMouseUp) + " " +
                                   fate(MouseEventFate::rewritten) + " to 1",
                               "mouse " + std::to_string(event::leftMouseDown) + " " +
                                   fate(MouseEventFate::passed),
                           }));
}

TEST_F(ControllerObserverTest, PassedEventsPostNothingWhileNobodyWantsThem) {
    const std::size_t pending = h.queue.pending();
    FakeTapEvent other(event::leftMouseDown, 0, otherSender);
    h.send(other);

    EXPECT_EQ(h.queue.pending(), pending);
    EXPECT_TRUE(notes.lines.empty());
}

// Whether anybody wants mouse events is counted as the observers say so, whenever they say it:
// before being added, while listed, and when removed while still wanting them.
TEST_F(ControllerObserverTest, MouseEventsAreToldExactlyWhileSomeListedObserverWantsThem) {
    NoteTaker early;
    early.wantMouseEvents(true);
    h.c().addObserver(early);
    FakeTapEvent first(event::leftMouseDown, 0, otherSender);
    h.send(first);
    h.queue.runReady();
    EXPECT_EQ(early.lines.size(), 1U);
    EXPECT_EQ(notes.lines.size(), 1U);

    notes.wantMouseEvents(true);
    early.wantMouseEvents(false);
    FakeTapEvent second(event::leftMouseDown, 0, otherSender);
    h.send(second);
    h.queue.runReady();
    EXPECT_EQ(notes.lines.size(), 2U);

    h.c().removeObserver(early);
    h.c().removeObserver(notes);
    notes.wantMouseEvents(false);
    notes.wantMouseEvents(true);
    h.c().addObserver(notes);
    h.c().removeObserver(notes);
    const std::size_t pending = h.queue.pending();
    FakeTapEvent third(event::leftMouseDown, 0, otherSender);
    h.send(third);
    EXPECT_EQ(h.queue.pending(), pending);
    h.c().addObserver(notes);
}

TEST_F(ControllerObserverTest, PressesLetGoOfAndStateChangesAreTold) {
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.runReady();
    notes.lines.clear();

    h.c().pause();
    h.c().applicationDidBecomeActive();
    EXPECT_EQ(notes.lines, (std::vector<std::string>{
                               "released 1",
                               "switch off by user",
                               "active yes",
                           }));
}

TEST_F(ControllerObserverTest, ARemovedObserverHearsNoMore) {
    h.c().removeObserver(notes);
    h.tap(1);
    h.c().addObserver(notes);  // for TearDown

    EXPECT_TRUE(notes.lines.empty());
}

}  // namespace
}  // namespace tactora::testing
