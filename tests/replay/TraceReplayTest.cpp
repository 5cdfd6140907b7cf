#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "core/profiles/ProfileJson.h"
#include "core/replay/ReplayMode.h"
#include "core/replay/TraceReplay.h"

namespace tactora {
namespace {

std::vector<Finger> fingers(int count) {
    std::vector<Finger> result;
    for (int i = 1; i <= count; ++i) {
        result.emplace_back(i, 0.5, 0.5);
    }
    return result;
}

TraceLine frame(double time, int count) {
    return {time, TraceFrame{fingers(count)}};
}

TraceLine mouse(double time, EventType type, bool fromMouse = true) {
    const std::int64_t button =
        type == event::rightMouseDown || type == event::rightMouseUp ? 1 : 0;
    return {time, TraceMouseEvent{type, button, fromMouse}};
}

constexpr std::uint64_t trackpad = 9;

TraceLine trackpadFrame(double time, int count) {
    return {time, TraceFrame{fingers(count), {}, trackpad}};
}

TraceLine trackpadEvent(double time, EventType type) {
    return {time, TraceMouseEvent{type, 0, true, trackpad}};
}

TraceLine declared(double time, std::uint64_t id = trackpad,
                   TraceDeviceKind kind = TraceDeviceKind::magicTrackpad) {
    return {time, TraceDevice{id, kind, "Magic Trackpad"}};
}

// One profile: the mouse's one-finger tap is a left click; on trackpads the three-finger tap
// and the three-finger click are the middle button.
std::vector<WorkProfile> trackpadProfile() {
    return decodeProfiles(
               R"([{"id":"6F1C2A10-0000-4000-8000-00000000000A","name":"P",)"
               R"("actions":[0,0,0,0,1,0,0,0],"shortcuts":[null,null,null,null,null,null,null,null],)"
               R"("trackpad":{"actions":[0,0,3,0,0,0,3,0],)"
               R"("shortcuts":[null,null,null,null,null,null,null,null]}}])")
        .value();
}

class TraceReplayTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setStringTable(nullptr);
        initializeGlobals();
    }
    void TearDown() override {
        for (const auto& path : files_) {
            std::filesystem::remove(path);
        }
    }

    std::string file(const std::string& name, const std::string& text) {
        const auto path =
            std::filesystem::temp_directory_path() /
            ("tactora-replay-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
             "-" + name);
        std::ofstream(path, std::ios::binary) << text;
        files_.push_back(path);
        return path.string();
    }

    int replay(const std::vector<std::string>& arguments) {
        out.str("");
        err.str("");
        return runReplay(arguments, out, err);
    }

    std::ostringstream out;
    std::ostringstream err;

  private:
    std::vector<std::filesystem::path> files_;
};

TEST_F(TraceReplayTest, TheDefaultProfileStillShowsEveryGesture) {
    const std::string output = TraceReplay::run({frame(5.0, 3), frame(5.1, 0)}, std::nullopt);
    EXPECT_EQ(output,
              "5.100 tap 3\n"
              "5.180 action action.default\n"
              "summary taps=1 clicks=0 actions=1 frames=2 mouse-events=0 seconds=0.100\n");
}

TEST_F(TraceReplayTest, AnEmptyTraceGivesOnlyTheSummary) {
    EXPECT_EQ(TraceReplay::run({}, std::nullopt),
              "summary taps=0 clicks=0 actions=0 frames=0 mouse-events=0 seconds=0.000\n");
}

TEST_F(TraceReplayTest, ClicksOfOtherDevicesAndWithoutFingersAreNotGestures) {
    const std::string output =
        TraceReplay::run({frame(1.0, 2), mouse(1.05, event::leftMouseDown, false),
                          mouse(1.06, event::leftMouseUp, false), frame(1.5, 0),
                          mouse(2.0, event::leftMouseDown), mouse(2.1, event::leftMouseUp)},
                         std::nullopt);
    EXPECT_EQ(output, "summary taps=0 clicks=0 actions=0 frames=2 mouse-events=4 seconds=1.100\n");
}

TEST_F(TraceReplayTest, GesturesSwitchedOffOrTheAppInFrontPerformNothing) {
    const std::string output = TraceReplay::run({{1.0, TraceGestures{false}},
                                                 frame(1.0, 1),
                                                 frame(1.1, 0),
                                                 {2.0, TraceGestures{true}},
                                                 {2.0, TraceActive{true}},
                                                 frame(2.0, 1),
                                                 frame(2.1, 0),
                                                 {3.0, TraceActive{false}},
                                                 frame(3.0, 1),
                                                 frame(3.1, 0)},
                                                std::nullopt);
    EXPECT_EQ(output,
              "1.100 tap 1\n"
              "2.100 tap 1\n"
              "3.100 tap 1\n"
              "3.180 action action.default\n"
              "summary taps=3 clicks=0 actions=1 frames=6 mouse-events=0 seconds=2.100\n");
}

TEST_F(TraceReplayTest, AnotherApplicationComingToTheFrontInTheWaitDropsTheTap) {
    const std::string output = TraceReplay::run(
        {frame(1.0, 1), frame(1.1, 0), {1.15, TraceFrontApplication{77, "com.example.Other"}}},
        std::nullopt);
    EXPECT_EQ(output,
              "1.100 tap 1\nsummary taps=1 clicks=0 actions=0 frames=2 mouse-events=0 "
              "seconds=0.150\n");
}

TEST_F(TraceReplayTest, AnHourOfSilenceOrAnAgeOfItIsCrossedInOneStep) {
    const std::string output = TraceReplay::run(
        {frame(1.0, 1), frame(1.1, 0), frame(1e15, 1), frame(1e15 + 0.125, 0)}, std::nullopt);
    EXPECT_NE(output.find("\nsummary taps=2 clicks=0 actions=2 frames=4 "), std::string::npos)
        << output;
}

TEST_F(TraceReplayTest, ReplaysAFileWithAProfileList) {
    const std::string trace = file("a.trace", "tactora-trace 1\n1.0 frame 1:0.5,0.5\n1.1 frame\n");
    const std::string profiles = file(
        "p.json", R"([{"id":"6F1C2A10-0000-4000-8000-00000000000A","name":"P","actions":[0,0,0,0,)"
                  R"(5,0,0,0],"shortcuts":[null,null,null,null,null,null,null,null]}])");
    EXPECT_EQ(replay({"tactora", "--replay", trace, "--profile", profiles}), 0);
    EXPECT_EQ(out.str(),
              "1.100 tap 1\n1.180 action action.copy\n"
              "summary taps=1 clicks=0 actions=1 frames=2 mouse-events=0 "
              "seconds=0.100\n");
    EXPECT_EQ(err.str(), "");
}

TEST_F(TraceReplayTest, AFurtherActionIsNamedAndNotCarriedOut) {
    const std::string trace = file("x.trace", "tactora-trace 1\n1.0 frame 1:0.5,0.5\n1.1 frame\n");
    const std::string profiles =
        file("x.json",
             R"([{"id":"6F1C2A10-0000-4000-8000-00000000000B","name":"P","actions":[0,0,0,0,)"
             R"(0,0,0,0],"shortcuts":[null,null,null,null,null,null,null,null],)"
             R"("extraActions":[null,null,null,null,{"action":"commandClick"},null,null,null]}])");
    EXPECT_EQ(replay({"tactora", "--replay", trace, "--profile", profiles}), 0);
    EXPECT_EQ(out.str(),
              "1.100 tap 1\n1.180 action action.click.command\n"
              "summary taps=1 clicks=0 actions=1 frames=2 mouse-events=0 "
              "seconds=0.100\n");
    EXPECT_EQ(err.str(), "");
}

TEST_F(TraceReplayTest, AMalformedTraceNamesItsLineAndWritesNothing) {
    setStringTable(std::make_shared<const StringsTable>(
        StringsTable::Entries{{"trace.error.back", "line %lld goes back"}}));
    const std::string trace =
        file("bad.trace", "tactora-trace 1\n2.0 frame 1:0.5,0.5\n1.0 frame\n");
    EXPECT_EQ(replay({"tactora", "--replay", trace}), 1);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(err.str(), trace + ": line 3 goes back\n");
}

TEST_F(TraceReplayTest, MissingArgumentsAndUnreadableFilesFail) {
    const std::string trace = file("ok.trace", "tactora-trace 1\n");
    const std::string notProfiles = file("bad.json", "{}");
    EXPECT_EQ(replay({"tactora", "--replay"}), 1);
    EXPECT_EQ(err.str(), "replay.usage\n");
    EXPECT_EQ(replay({"tactora", "--replay", trace, "--profile"}), 1);
    EXPECT_EQ(err.str(), "replay.usage\n");
    EXPECT_EQ(replay({"tactora", "--replay", "/nonexistent/x.trace"}), 1);
    EXPECT_EQ(err.str(), "replay.unreadable\n");
    EXPECT_EQ(replay({"tactora", "--replay", trace, "--profile", notProfiles}), 1);
    EXPECT_EQ(err.str(), "replay.profiles\n");
    EXPECT_EQ(out.str(), "");
}

TEST_F(TraceReplayTest, ATrackpadsTapIsRecognisedByItsOwnRecogniserAndNamesItsDevice) {
    const std::string output = TraceReplay::run(
        {declared(1.0), trackpadFrame(1.0, 3), trackpadFrame(1.1, 0)}, trackpadProfile());
    EXPECT_EQ(output,
              "1.100 tap 3 @9\n"
              "1.180 action action.middle @9\n"
              "summary taps=1 clicks=0 actions=1 frames=2 mouse-events=0 seconds=0.100\n");
}

TEST_F(TraceReplayTest, TheFramesOfTheMouseAndOfATrackpadNeverMakeOneTouch) {
    const std::string output =
        TraceReplay::run({declared(1.0), frame(1.0, 1), trackpadFrame(1.002, 3), frame(1.05, 1),
                          trackpadFrame(1.052, 3), frame(1.1, 0), trackpadFrame(1.102, 0)},
                         trackpadProfile());
    EXPECT_EQ(output,
              "1.100 tap 1\n"
              "1.102 tap 3 @9\n"
              "1.180 action action.left\n"
              "1.182 action action.middle @9\n"
              "summary taps=2 clicks=0 actions=2 frames=6 mouse-events=0 seconds=0.102\n");
}

TEST_F(TraceReplayTest, ATrackpadsClickIsRewrittenThroughItsUpAndExplainedWithItsDevice) {
    const std::vector<TraceLine> lines = {declared(1.0),
                                          trackpadFrame(1.0, 3),
                                          trackpadEvent(1.05, event::leftMouseDown),
                                          trackpadEvent(1.1, event::leftMouseDragged),
                                          trackpadEvent(1.15, event::leftMouseUp),
                                          trackpadFrame(1.2, 0)};
    EXPECT_EQ(TraceReplay::run(lines, trackpadProfile()),
              "1.050 click 3 @9\n"
              "1.050 action action.middle button 2 @9\n"
              "summary taps=0 clicks=1 actions=1 frames=2 mouse-events=3 seconds=0.200\n");
    EXPECT_EQ(TraceReplay::run(lines, trackpadProfile(), TraceReplay::Detail::explained),
              "1.050 click 3 @9\n"
              "1.050 action action.middle button 2 @9\n"
              "1.050 left-down 0 @9 rewritten button 2\n"
              "1.100 left-drag 0 @9 rewritten button 2\n"
              "1.150 left-up 0 @9 rewritten button 2\n"
              "summary taps=0 clicks=1 actions=1 frames=2 mouse-events=3 seconds=0.200\n");
}

TEST_F(TraceReplayTest, ATrackpadSwitchedOffChangesNothingUntilSwitchedOnAgain) {
    const std::string output = TraceReplay::run({declared(1.0),
                                                 {1.0, TraceDeviceUse{trackpad, false}},
                                                 trackpadFrame(1.0, 3),
                                                 trackpadEvent(1.05, event::leftMouseDown),
                                                 trackpadEvent(1.06, event::leftMouseUp),
                                                 trackpadFrame(1.1, 0),
                                                 {2.0, TraceDeviceUse{trackpad, true}},
                                                 trackpadFrame(2.0, 3),
                                                 trackpadFrame(2.1, 0)},
                                                trackpadProfile());
    EXPECT_EQ(output,
              "2.100 tap 3 @9\n"
              "2.180 action action.middle @9\n"
              "summary taps=1 clicks=0 actions=1 frames=4 mouse-events=2 seconds=1.100\n");
}

TEST_F(TraceReplayTest, DeclaringASwitchedOffTrackpadAgainLeavesItSwitchedOff) {
    const std::string output = TraceReplay::run({declared(1.0),
                                                 {1.0, TraceDeviceUse{trackpad, false}},
                                                 declared(1.5),
                                                 trackpadFrame(2.0, 3),
                                                 trackpadFrame(2.1, 0)},
                                                trackpadProfile());
    EXPECT_EQ(output, "summary taps=0 clicks=0 actions=0 frames=2 mouse-events=0 seconds=1.100\n");
}

TEST_F(TraceReplayTest, AMagicMouseNamedByADeviceLineIsTheControllersAsAlways) {
    const std::string output = TraceReplay::run({declared(1.0, 7, TraceDeviceKind::magicMouse),
                                                 {1.0, TraceDeviceUse{7, false}},
                                                 {1.0, TraceFrame{fingers(1), {}, 7}},
                                                 {1.1, TraceFrame{{}, {}, 7}}},
                                                trackpadProfile());
    EXPECT_EQ(output,
              "1.100 tap 1\n"
              "1.180 action action.left\n"
              "summary taps=1 clicks=0 actions=1 frames=2 mouse-events=0 seconds=0.100\n");
}

TEST_F(TraceReplayTest, ADeviceIdOfZeroOrTheLargestStillNamesItsTrackpad) {
    for (const std::uint64_t id : {std::uint64_t{0}, ~std::uint64_t{0}}) {
        const std::string output = TraceReplay::run({declared(1.0, id),
                                                     {1.0, TraceFrame{fingers(3), {}, id}},
                                                     {1.1, TraceFrame{{}, {}, id}}},
                                                    trackpadProfile());
        EXPECT_EQ(output, "1.100 tap 3 @" + std::to_string(id) + "\n1.180 action action.middle @" +
                              std::to_string(id) +
                              "\nsummary taps=1 clicks=0 actions=1 frames=2 mouse-events=0 "
                              "seconds=0.100\n");
    }
}

}  // namespace
}  // namespace tactora
