// The replay, explained: why each touch came to nothing and what became of each mouse event,
// told among the replay's own lines in time order.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "core/profiles/ProfileJson.h"
#include "core/replay/TraceReplay.h"

namespace tactora {
namespace {

// Clicks with one, two, three, four fingers: left, right, copy, Mission Control; taps: copy,
// right, paste, desktop.
constexpr const char* profilesJson =
    R"([{"id":"6F1C2A10-0000-4000-8000-00000000000A","name":"P","actions":[1,2,5,12,5,2,6,13],)"
    R"("shortcuts":[null,null,null,null,null,null,null,null]}])";

TraceLine frame(double time, int count, double x = 0.5) {
    std::vector<Finger> fingers;
    for (int i = 1; i <= count; ++i) {
        fingers.emplace_back(i, x, 0.5);
    }
    return {time, TraceFrame{fingers}};
}

TraceLine mouse(double time, EventType type, std::int64_t button = 0, bool fromMouse = true) {
    return {time, TraceMouseEvent{type, button, fromMouse}};
}

class ExplainedReplayTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setStringTable(nullptr);
        initializeGlobals();
    }

    static std::string explained(const std::vector<TraceLine>& lines) {
        return TraceReplay::run(lines, decodeProfiles(profilesJson),
                                TraceReplay::Detail::explained);
    }
    static std::string plain(const std::vector<TraceLine>& lines) {
        return TraceReplay::run(lines, decodeProfiles(profilesJson));
    }
};

TEST_F(ExplainedReplayTest, ATouchRestingTooLongIsDroppedAsTooLong) {
    EXPECT_EQ(explained({frame(1.0, 1), frame(1.5, 1), frame(1.5, 0)}),
              "1.500 dropped too-long 1\n"
              "summary taps=0 clicks=0 actions=0 frames=3 mouse-events=0 seconds=0.500\n");
}

TEST_F(ExplainedReplayTest, AGrazeIsDroppedAsTooShort) {
    EXPECT_EQ(explained({frame(1.0, 2), frame(1.01, 0)}),
              "1.010 dropped too-short 2\n"
              "summary taps=0 clicks=0 actions=0 frames=2 mouse-events=0 seconds=0.010\n");
}

TEST_F(ExplainedReplayTest, AFingerThatMovedIsDroppedAsMoved) {
    EXPECT_EQ(explained({frame(1.0, 1), frame(1.05, 1, 0.8), frame(1.1, 0)}),
              "1.100 dropped moved 1\n"
              "summary taps=0 clicks=0 actions=0 frames=3 mouse-events=0 seconds=0.100\n");
}

TEST_F(ExplainedReplayTest, FiveFingersAreDroppedAsTooMany) {
    EXPECT_EQ(explained({frame(1.0, 5), frame(1.1, 0)}),
              "1.100 dropped too-many-fingers 5\n"
              "summary taps=0 clicks=0 actions=0 frames=2 mouse-events=0 seconds=0.100\n");
}

TEST_F(ExplainedReplayTest, AClickAfterTheTapVetoesItsActionAndBothEventsPass) {
    EXPECT_EQ(explained({frame(30.0, 2), frame(30.05, 2), frame(30.1, 0),
                         mouse(30.15, event::leftMouseDown), mouse(30.2, event::leftMouseUp)}),
              "30.100 tap 2\n"
              "30.150 left-down 0 mouse passed\n"
              "30.180 action-dropped action.right click-after\n"
              "30.200 left-up 0 mouse passed\n"
              "summary taps=1 clicks=0 actions=0 frames=3 mouse-events=2 seconds=0.200\n");
}

TEST_F(ExplainedReplayTest, AClickWithRestingFingersIsRewrittenAndItsTouchDroppedAsClickDuring) {
    EXPECT_EQ(explained({frame(20.0, 2), frame(20.2, 2), mouse(20.2, event::leftMouseDown),
                         mouse(20.25, event::leftMouseDragged), mouse(20.35, event::leftMouseUp),
                         frame(20.5, 0)}),
              "20.200 left-down 0 mouse rewritten button 1\n"
              "20.200 click 2\n"
              "20.200 action action.right button 1\n"
              "20.250 left-drag 0 mouse rewritten button 1\n"
              "20.350 left-up 0 mouse rewritten button 1\n"
              "20.500 dropped click-during 2\n"
              "summary taps=0 clicks=1 actions=1 frames=3 mouse-events=3 seconds=0.500\n");
}

TEST_F(ExplainedReplayTest, AClickWhoseActionIsAShortcutIsSwallowed) {
    const std::string output = explained({frame(1.0, 3), mouse(1.1, event::leftMouseDown),
                                          mouse(1.2, event::leftMouseUp), frame(1.3, 0)});
    EXPECT_NE(output.find("1.100 left-down 0 mouse swallowed\n"), std::string::npos) << output;
    EXPECT_NE(output.find("1.200 left-up 0 mouse swallowed\n"), std::string::npos) << output;
    EXPECT_NE(output.find("action action.copy\n"), std::string::npos) << output;
}

TEST_F(ExplainedReplayTest, SwitchingGesturesOffWhileAPressIsHeldSendsItsUp) {
    const std::string output = explained({frame(1.0, 2),
                                          mouse(1.1, event::leftMouseDown),
                                          {1.2, TraceGestures{false}},
                                          mouse(1.3, event::leftMouseUp),
                                          frame(1.4, 0)});
    EXPECT_NE(output.find("1.100 left-down 0 mouse rewritten button 1\n"), std::string::npos)
        << output;
    EXPECT_NE(output.find("1.200 up-sent button 1\n"), std::string::npos) << output;
}

TEST_F(ExplainedReplayTest, ATapWhileGesturesAreOffIsDroppedAsGesturesOff) {
    EXPECT_EQ(explained({{1.0, TraceGestures{false}}, frame(1.0, 1), frame(1.1, 0)}),
              "1.100 tap 1\n"
              "1.100 dropped gestures-off 1\n"
              "summary taps=1 clicks=0 actions=0 frames=2 mouse-events=0 seconds=0.100\n");
}

TEST_F(ExplainedReplayTest, AnotherApplicationInTheWaitDropsTheAction) {
    EXPECT_EQ(
        explained(
            {frame(1.0, 1), frame(1.1, 0), {1.15, TraceFrontApplication{77, "com.example.Other"}}}),
        "1.100 tap 1\n"
        "1.180 action-dropped action.copy application-changed\n"
        "summary taps=1 clicks=0 actions=0 frames=2 mouse-events=0 seconds=0.150\n");
}

TEST_F(ExplainedReplayTest, ScrollsAndOtherDevicesAreTold) {
    EXPECT_EQ(explained({mouse(1.0, event::scrollWheel), mouse(1.1, event::leftMouseDown, 0, false),
                         mouse(1.2, event::leftMouseUp, 0, false)}),
              "1.000 scroll mouse passed\n"
              "1.100 left-down 0 other passed\n"
              "1.200 left-up 0 other passed\n"
              "summary taps=0 clicks=0 actions=0 frames=0 mouse-events=3 seconds=0.200\n");
}

TEST_F(ExplainedReplayTest, WithoutExplainingTheOutputIsTheDecisionsAlone) {
    const std::vector<TraceLine> lines = {frame(1.0, 1),
                                          frame(1.5, 1),
                                          frame(1.5, 0),
                                          mouse(1.6, event::leftMouseDown),
                                          frame(2.0, 2),
                                          frame(2.1, 0),
                                          frame(3.0, 5),
                                          frame(3.1, 0),
                                          mouse(3.2, event::leftMouseUp)};
    EXPECT_EQ(plain(lines),
              "2.100 tap 2\n"
              "2.180 action action.right\n"
              "summary taps=1 clicks=0 actions=1 frames=7 mouse-events=2 seconds=2.200\n");
    const std::string explainedOutput = explained(lines);
    EXPECT_NE(explainedOutput.find("1.500 dropped too-long 1\n"), std::string::npos);
    EXPECT_NE(explainedOutput.find("3.100 dropped too-many-fingers 5\n"), std::string::npos);
}

}  // namespace
}  // namespace tactora
