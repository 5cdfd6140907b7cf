#include "core/console/ConsoleModes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "console/FakeProgramEnvironment.h"
#include "core/app/Globals.h"
#include "core/console/Program.h"
#include "core/localization/Localizer.h"

namespace tactora {
namespace {

using testing::FakeProgramEnvironment;
using testing::MapStringTable;

std::shared_ptr<const StringTable> englishTable() {
    return std::make_shared<MapStringTable>(std::map<std::string, std::string, std::less<>>{
        {"action.default", "Default"},
        {"action.desktop", "Show Desktop"},
        {"hero", "Gestures for your Magic Mouse"},
        {"record.hint", "Record a shortcut for custom actions."},
        {"finger.many", "%lld fingers"},
        {"sensor.blocked", "The mouse could not be started (error %lld)."},
        {"sensor.unavailable", "The touch sensor is not available."},
        {"permissions", "Accessibility: %@ · Input Monitoring: %@"},
        {"ok", "granted"},
        {"pending", "pending"},
        {"error.action", "%@ failed (error %lld)."},
    });
}

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> result;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        result.push_back(line);
    }
    return result;
}

class ConsoleModesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setStringTable(englishTable());
        initializeGlobals();
    }
    void TearDown() override { setStringTable(nullptr); }

    std::string run(void (*mode)(ProgramEnvironment&)) {
        ::testing::internal::CaptureStdout();
        mode(environment);
        return ::testing::internal::GetCapturedStdout();
    }

    FakeProgramEnvironment environment;
};

using ConsoleModesDeathTest = ConsoleModesTest;

TEST_F(ConsoleModesTest, SelfTestPrintsEveryPassLineInOrder) {
    const auto output = lines(run(runSelfTest));
    ASSERT_EQ(output.size(), 4U);
    EXPECT_EQ(output[0],
              "PASS: taps de 1–4 dedos, clique sem tap duplicado, movimento, duração, excesso de "
              "dedos, soltura gradual e ruído.");
    EXPECT_EQ(output[1],
              "PASS: legacy migration, profile isolation, duplication, rename, saved shortcuts "
              "and reload.");
    EXPECT_EQ(output[2],
              "PASS: pending gestures cancel on pause, profile changes, focus changes and "
              "configuration.");
    EXPECT_EQ(output[3], "PASS: bundled app icon decodes at all required sizes.");
}

TEST_F(ConsoleModesTest, SelfTestLeavesTheStandardPreferencesUntouched) {
    run(runSelfTest);
    auto standard = environment.suites.standard();
    EXPECT_FALSE(standard->data("workProfiles.v1").has_value());
    EXPECT_FALSE(standard->string("activeWorkProfile").has_value());
}

TEST_F(ConsoleModesTest, SelfTestAcceptsIconSizesBeyondTheRequiredOnes) {
    environment.iconWidths = std::vector<std::int64_t>{16, 32, 48, 64, 128, 256, 512, 1024, 2048};
    EXPECT_EQ(lines(run(runSelfTest)).back(),
              "PASS: bundled app icon decodes at all required sizes.");
}

TEST_F(ConsoleModesDeathTest, SelfTestStopsWhenTheIconIsMissing) {
    environment.iconWidths = std::nullopt;
    EXPECT_DEATH(runSelfTest(environment), "Missing app icon");
}

TEST_F(ConsoleModesDeathTest, SelfTestStopsWhenTheIconLacksTheSixtyFourPixelImage) {
    environment.iconWidths = std::vector<std::int64_t>{16, 32, 128, 256, 512, 1024};
    EXPECT_DEATH(runSelfTest(environment), "Assertion failed");
}

TEST_F(ConsoleModesTest, LocalizationCheckPrintsSevenLinesInTheUsersLanguage) {
    const auto output = lines(run(runLocalizationCheck));
    const std::vector<std::string> expected = {
        "Language: en",
        "Gestures for your Magic Mouse",
        "Record a shortcut for custom actions.",
        "3 fingers",
        "The mouse could not be started (error 42).",
        "Accessibility: granted · Input Monitoring: pending",
        "Show Desktop failed (error %lld).",
    };
    EXPECT_EQ(output, expected);
}

TEST_F(ConsoleModesTest, LocalizationCheckSaysNoneWithoutAPreferredLocalization) {
    environment.localization = std::nullopt;
    EXPECT_EQ(lines(run(runLocalizationCheck)).front(), "Language: none");
}

TEST_F(ConsoleModesDeathTest, LocalizationCheckWithoutATablePrintsRawKeysThenFails) {
    const auto path = std::filesystem::temp_directory_path() / "tactora-check-localization.txt";
    std::filesystem::remove(path);
    EXPECT_DEATH(
        {
            setStringTable(nullptr);
            initializeGlobals();
            if (std::freopen(path.c_str(), "w", stdout) == nullptr) {
                std::abort();
            }
            runLocalizationCheck(environment);
        },
        "Assertion failed");
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    const std::vector<std::string> expected = {
        "Language: en",   "hero",        "record.hint",  "finger.many",
        "sensor.blocked", "permissions", "error.action",
    };
    EXPECT_EQ(lines(text.str()), expected);
    std::filesystem::remove(path);
}

TEST_F(ConsoleModesTest, ProbeReportsTheStartResultAndTheLocalisedStatus) {
    environment.fakeSensor.statusKey = "sensor.unavailable";
    EXPECT_EQ(run(runProbe), "Sensor: 0 · The touch sensor is not available.\n");
    EXPECT_EQ(environment.fakeSensor.starts, 1);
    EXPECT_EQ(environment.fakeSensor.stops, 1);
}

TEST_F(ConsoleModesTest, ProbePassesTheErrorCodeToTheStatusText) {
    environment.fakeSensor.statusKey = "sensor.blocked";
    environment.fakeSensor.error = -536870174;
    EXPECT_EQ(run(runProbe), "Sensor: 0 · The mouse could not be started (error -536870174).\n");
}

TEST_F(ConsoleModesTest, ProbeShowsOneWhenTheSensorStarts) {
    environment.fakeSensor.startResult = true;
    environment.fakeSensor.statusKey = "sensor.connected";
    EXPECT_EQ(run(runProbe), "Sensor: 1 · sensor.connected\n");
}

TEST_F(ConsoleModesTest, ProbeHandsTheSensorACallbackThatIgnoresFrames) {
    run(runProbe);
    ASSERT_NE(environment.fakeSensor.lastCallback, nullptr);
    const std::int32_t ids[] = {1};
    const float positions[] = {0.5F};
    environment.fakeSensor.lastCallback(1, ids, positions, positions, nullptr);
}

}  // namespace
}  // namespace tactora
