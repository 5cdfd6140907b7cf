#include "core/console/Program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "console/FakeProgramEnvironment.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"

namespace tactora {
namespace {

using testing::FakeProgramEnvironment;
using testing::MapStringTable;

class ProgramTest : public ::testing::Test {
  protected:
    void TearDown() override { setStringTable(nullptr); }

    int run(std::vector<std::string> arguments) {
        ::testing::internal::CaptureStdout();
        const int status = runProgram(arguments, environment);
        output = ::testing::internal::GetCapturedStdout();
        return status;
    }

    FakeProgramEnvironment environment;
    std::string output;
};

TEST_F(ProgramTest, WithoutAConsoleFlagRunsTheApplication) {
    EXPECT_EQ(run({"tactora"}), 0);
    EXPECT_EQ(environment.applicationRuns, 1);
    EXPECT_EQ(environment.fakeSensor.starts, 0);
}

TEST_F(ProgramTest, ProbeAndSelfTestTogetherRunOnlyTheSelfTest) {
    EXPECT_EQ(run({"tactora", "--probe", "--self-test"}), 0);
    EXPECT_EQ(environment.fakeSensor.starts, 0);
    EXPECT_EQ(environment.applicationRuns, 0);
    EXPECT_NE(output.find("PASS: bundled app icon decodes at all required sizes."),
              std::string::npos);
}

TEST_F(ProgramTest, LocalizationCheckWinsOverTheProbe) {
    setStringTable(std::make_shared<MapStringTable>(
        std::map<std::string, std::string, std::less<>>{{"action.default", "Default"}}));
    EXPECT_EQ(run({"tactora", "--probe", "--check-localization"}), 0);
    EXPECT_EQ(environment.fakeSensor.starts, 0);
    EXPECT_EQ(output.rfind("Language: en\n", 0), 0U);
}

TEST_F(ProgramTest, FlagsMustMatchExactly) {
    EXPECT_EQ(run({"tactora", "--probe=1", "-self-test"}), 0);
    EXPECT_EQ(environment.applicationRuns, 1);
}

TEST_F(ProgramTest, ProbeRunsWhenItIsTheOnlyFlag) {
    EXPECT_EQ(run({"tactora", "--probe"}), 0);
    EXPECT_EQ(environment.fakeSensor.starts, 1);
    EXPECT_EQ(output.rfind("Sensor: 0 · ", 0), 0U);
}

TEST_F(ProgramTest, TheProbeWinsOverAReplay) {
    EXPECT_EQ(run({"tactora", "--replay", "/nonexistent.trace", "--probe"}), 0);
    EXPECT_EQ(environment.fakeSensor.starts, 1);
}

TEST_F(ProgramTest, AReplayThatCannotReadItsTraceEndsWithStatusOne) {
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(run({"tactora", "--replay", "/nonexistent.trace"}), 1);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "replay.unreadable\n");
    EXPECT_EQ(output, "");
    EXPECT_EQ(environment.applicationRuns, 0);
    EXPECT_EQ(environment.fakeSensor.starts, 0);
}

TEST_F(ProgramTest, AReplayPrintsWhatTheTraceMakesTheControllerDo) {
    const auto path = std::filesystem::temp_directory_path() / "tactora-program-test.trace";
    std::ofstream(path) << "tactora-trace 1\n7.0 frame 1:0.5,0.5\n7.1 frame\n";
    EXPECT_EQ(run({"tactora", "--replay", path.string()}), 0);
    std::filesystem::remove(path);
    EXPECT_EQ(output.rfind("7.100 tap 1\n7.180 action action.default\nsummary ", 0), 0U);
    EXPECT_EQ(environment.applicationRuns, 0);
}

TEST_F(ProgramTest, AScoreOfADirectoryWithoutLabelledTracesEndsWithStatusOne) {
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(run({"tactora", "--score", "/nonexistent"}), 1);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "replay.unreadable\n");
    EXPECT_EQ(output, "");
    EXPECT_EQ(environment.applicationRuns, 0);
    EXPECT_EQ(environment.fakeSensor.starts, 0);
}

TEST_F(ProgramTest, GlobalsHoldTheMarkerAndTheLocalisedActionNames) {
    setStringTable(std::make_shared<MapStringTable>(
        std::map<std::string, std::string, std::less<>>{{"action.copy", "Copy"}}));
    run({"tactora"});
    EXPECT_EQ(marker, 0x544143544F52);
    ASSERT_EQ(choices().size(), 15U);
    EXPECT_EQ(choices()[5], "Copy");
    EXPECT_EQ(choices()[14], "action.custom");
}

TEST(MarkerTest, MarkerSpellsTactorInBigEndianAscii) {
    std::string letters;
    for (int shift = 40; shift >= 0; shift -= 8) {
        letters.push_back(static_cast<char>((marker >> shift) & 0xFF));
    }
    EXPECT_EQ(letters, "TACTOR");
}

}  // namespace
}  // namespace tactora
