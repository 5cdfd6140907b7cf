#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/app/Globals.h"
#include "core/replay/TraceReplay.h"
#include "core/trace/TraceReader.h"

namespace tactora {
namespace {

using testing::ControllerHarness;
using testing::FakeTapEvent;

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

class ControllerTracesTest : public ::testing::Test {
  protected:
    void SetUp() override { h.launchAndSwitchOn(); }

    std::vector<std::string> traced() const {
        return h.traceSink.files.empty() ? std::vector<std::string>{}
                                         : linesOf(h.traceSink.files.back());
    }

    std::string profileLine() { return "profile " + h.c().profiles().activeID().text(); }

    ControllerHarness h;
};

TEST_F(ControllerTracesTest, NothingIsRecordedUntilTheUserAsks) {
    h.tap(2);
    auto down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    h.queue.advance(1);
    EXPECT_TRUE(h.traceSink.files.empty());
    EXPECT_FALSE(h.a().recorder().isRecording());
    EXPECT_EQ(h.shell.statusMenu.at(3),
              (MenuEntry{"menu.trace.start", MenuCommand::recordTouches, ""}));
}

TEST_F(ControllerTracesTest, StartingWritesTheHeaderAndTheStateAReplayStartsFrom) {
    h.a().recorder().recordTouches();
    EXPECT_TRUE(h.a().recorder().isRecording());
    EXPECT_TRUE(h.traceSink.open);
    EXPECT_EQ(traced(), (std::vector<std::string>{"tactora-trace 3", "1000.0 gestures on",
                                                  "1000.0 active off", "1000.0 " + profileLine(),
                                                  "1000.0 front 42 com.example.Editor"}));
    EXPECT_EQ(h.shell.statusMenu.at(3),
              (MenuEntry{"menu.trace.stop", MenuCommand::recordTouches, ""}));
    EXPECT_EQ(h.view.status, "trace.started");
    EXPECT_TRUE(h.view.live.ends_with(" · trace.live")) << h.view.live;
}

TEST_F(ControllerTracesTest, StoppingClosesTheFileAndPutsTheMenuBack) {
    h.a().recorder().recordTouches();
    h.a().recorder().recordTouches();
    EXPECT_FALSE(h.a().recorder().isRecording());
    EXPECT_FALSE(h.traceSink.open);
    EXPECT_EQ(h.view.status, "trace.saved");
    EXPECT_EQ(h.shell.statusMenu.at(3).title, "menu.trace.start");
    EXPECT_FALSE(h.view.live.ends_with("trace.live"));
}

TEST_F(ControllerTracesTest, WithNowhereToWriteNothingStarts) {
    h.traceSink.path.reset();
    h.a().recorder().recordTouches();
    EXPECT_FALSE(h.a().recorder().isRecording());
    EXPECT_EQ(h.view.status, "trace.failed");
    EXPECT_EQ(h.shell.statusMenu.at(3).title, "menu.trace.start");
}

TEST_F(ControllerTracesTest, ARecordingThatCannotMakeItsFileSaysWhyAndRecordsNothing) {
    h.traceSink.failWith("/Logs/Tactora", std::errc::permission_denied);
    h.a().recorder().recordTouches();
    EXPECT_FALSE(h.a().recorder().isRecording());
    EXPECT_EQ(h.view.status, "trace.failed.permission");
    EXPECT_TRUE(h.traceSink.files.empty());
    EXPECT_EQ(h.shell.statusMenu.at(3).title, "menu.trace.start");
}

TEST_F(ControllerTracesTest, RecordsWhatTheControllerReceives) {
    h.a().recorder().recordTouches();
    const std::size_t header = traced().size();
    h.frame(2, 0.25F);
    auto down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    auto other = FakeTapEvent(event::rightMouseUp, 1, testing::otherSender);
    h.send(other);
    auto own = FakeTapEvent(event::leftMouseUp, 0, testing::mouseSender, marker);
    h.send(own);
    auto scroll = h.mouseEvent(event::scrollWheel);
    h.send(scroll);
    h.queue.advance(0.5);
    h.workspace.bringToFront(77, "");
    h.frame(0);
    h.c().applicationDidBecomeActive();
    h.c().pause();
    const std::vector<std::string> lines = traced();
    ASSERT_GE(lines.size(), header);
    EXPECT_EQ(
        std::vector<std::string>(lines.begin() + static_cast<std::ptrdiff_t>(header), lines.end()),
        (std::vector<std::string>{
            "1000.0 frame 1:0.25,0.5 2:0.25,0.5",
            "1000.0 left-down 0 mouse",
            "1000.0 right-up 1 other",
            "1000.0 scroll mouse",
            "1000.5 front 77 -",
            "1000.5 frame",
            "1000.5 active on",
            "1000.5 gestures off",
        }));
}

TEST_F(ControllerTracesTest, ASelectedProfileIsRecorded) {
    h.c().profiles().add("Second", false);
    const std::string second = h.c().profiles().activeID().text();
    h.a().recorder().recordTouches();
    h.view.profileChoice = second;
    h.c().selectProfile();
    EXPECT_EQ(traced().back(), "1000.0 profile " + second);
}

TEST_F(ControllerTracesTest, StopsByItselfAfterTenMinutes) {
    h.a().recorder().recordTouches();
    h.queue.advance(599.9);
    EXPECT_TRUE(h.a().recorder().isRecording());
    h.queue.advance(0.2);
    EXPECT_FALSE(h.a().recorder().isRecording());
    EXPECT_FALSE(h.traceSink.open);
    EXPECT_EQ(h.view.status, "trace.saved");
    EXPECT_EQ(h.shell.statusMenu.at(3).title, "menu.trace.start");
}

TEST_F(ControllerTracesTest, QuittingStopsTheRecording) {
    h.a().recorder().recordTouches();
    h.c().applicationWillTerminate();
    EXPECT_FALSE(h.a().recorder().isRecording());
    EXPECT_FALSE(h.traceSink.open);
}

// What the controller did live, it does again when its own trace is replayed.
TEST_F(ControllerTracesTest, ReplayingARecordingDecidesWhatTheLiveControllerDid) {
    h.assign(5, action::copy);
    h.assign(1, action::right);
    h.a().recorder().recordTouches();
    h.tap(2);  // performed 0.08 s later
    h.queue.advance(0.5);
    h.rest(2);
    auto down = h.mouseEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::pass);
    EXPECT_EQ(down.button(), 1);
    auto up = h.mouseEvent(event::leftMouseUp);
    h.send(up);
    h.queue.advance(0.2);
    h.frame(0);
    h.queue.advance(0.5);
    h.tap(2);  // vetoed by the click that follows
    h.queue.advance(0.03);
    auto late = h.mouseEvent(event::leftMouseDown);
    h.send(late);
    h.queue.advance(1);
    h.a().recorder().recordTouches();
    EXPECT_EQ(h.poster.keyEvents().size(), 2U);  // one copy: down and up

    const TraceReading reading = readTrace(h.traceSink.files.back());
    ASSERT_FALSE(reading.error);
    const std::string replayed = TraceReplay::run(reading.lines, h.c().profiles().profiles());
    EXPECT_EQ(replayed,
              "1000.100 tap 2\n"
              "1000.180 action action.copy\n"
              "1000.600 click 2\n"
              "1000.600 action action.right button 1\n"
              "1001.400 tap 2\n"
              "summary taps=2 clicks=1 actions=2 frames=6 mouse-events=3 seconds=1.430\n");
}

// The recording notes another application coming to the front when the system announces it,
// and the replay applies it there, before the waiting tap runs.
TEST_F(ControllerTracesTest, AnApplicationSwitchInTheWaitIsReplayedAsLive) {
    h.assign(5, action::copy);
    h.a().recorder().recordTouches();
    h.tap(2);
    h.queue.advance(0.05);
    h.workspace.bringToFront(77, h.workspace.frontmostBundle);
    h.queue.advance(0.05);
    h.a().recorder().recordTouches();
    EXPECT_TRUE(h.poster.keyEvents().empty());

    const TraceReading reading = readTrace(h.traceSink.files.back());
    ASSERT_FALSE(reading.error);
    const std::string replayed = TraceReplay::run(reading.lines, h.c().profiles().profiles());
    EXPECT_EQ(replayed.substr(0, replayed.find("summary")), "1000.100 tap 2\n");
}

TEST_F(ControllerTracesTest, TheApplicationInFrontIsNeverAskedForPerEvent) {
    h.a().recorder().recordTouches();
    const int asked = h.workspace.bundleQueries;
    for (int round = 0; round < 20; ++round) {
        h.tap(2);
        auto down = h.mouseEvent(event::leftMouseDown);
        auto up = h.mouseEvent(event::leftMouseUp);
        h.send(down);
        h.send(up);
        h.queue.advance(0.5);
    }
    EXPECT_EQ(h.workspace.bundleQueries, asked);
    const std::vector<std::string> lines = traced();
    EXPECT_EQ(std::ranges::count_if(lines,
                                    [](const std::string& line) {
                                        return line.find(" front ") != std::string::npos;
                                    }),
              1);
    EXPECT_GT(lines.size(), 60U);
}

TEST_F(ControllerTracesTest, EveryAnnouncedApplicationIsRecordedOnceEvenThisOne) {
    h.a().recorder().recordTouches();
    h.clock.now = 1000.5;
    h.workspace.bringToFront(77, "com.example.Mail");
    h.workspace.bringToFront(77, "com.example.Mail");
    h.workspace.bringToFront(h.workspace.ownProcessID(), "com.example.Self");
    h.workspace.bringToFront(std::nullopt, "");
    const std::vector<std::string> lines = traced();
    EXPECT_EQ(
        std::vector<std::string>(lines.end() - 3, lines.end()),
        (std::vector<std::string>{
            "1000.5 front 77 com.example.Mail",
            "1000.5 front " + std::to_string(h.workspace.ownProcessID()) + " com.example.Self",
            "1000.5 front none",
        }));
}

TEST_F(ControllerTracesTest, ARecordingStartsFromTheLastAnnouncedApplication) {
    h.workspace.bringToFront(77, "com.example.Mail");
    const int asked = h.workspace.bundleQueries;
    h.a().recorder().recordTouches();
    EXPECT_EQ(h.workspace.bundleQueries, asked);
    EXPECT_EQ(traced().back(), "1000.0 front 77 com.example.Mail");
}

}  // namespace
}  // namespace tactora
