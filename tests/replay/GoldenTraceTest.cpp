// Replays every trace in tests/traces with the profiles kept there and compares the output with
// the expected file beside it, and its explained replay with the explained file. Adding a trace
// recorded on a Mac is adding <name>.trace, its <name>.expected and its <name>.explained.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/profiles/ProfileJson.h"
#include "core/replay/TraceReplay.h"
#include "core/trace/TraceReader.h"
#include "support/ShippedResources.h"

namespace tactora {
namespace {

std::filesystem::path tracesDirectory() {
    return testing::shippedResourcesDirectory().parent_path() / "tests" / "traces";
}

std::string contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::vector<std::string> traceNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(tracesDirectory())) {
        if (entry.path().extension() == ".trace") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::ranges::sort(names);
    return names;
}

class GoldenTrace : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        setStringTable(nullptr);
        initializeGlobals();
    }
};

TEST_P(GoldenTrace, ReplaysToItsExpectedOutput) {
    const std::filesystem::path base = tracesDirectory() / GetParam();
    const TraceReading reading = readTrace(contents(base.string() + ".trace"));
    ASSERT_FALSE(reading.error) << describeTraceError(*reading.error);
    const auto profiles = decodeProfiles(contents(tracesDirectory() / "profiles.json"));
    ASSERT_TRUE(profiles);
    const std::filesystem::path expected = base.string() + ".expected";
    ASSERT_TRUE(std::filesystem::exists(expected)) << expected;
    EXPECT_EQ(TraceReplay::run(reading.lines, profiles), contents(expected));
}

TEST_P(GoldenTrace, ExplainsItselfAsItsExplainedFileSays) {
    const std::filesystem::path base = tracesDirectory() / GetParam();
    const TraceReading reading = readTrace(contents(base.string() + ".trace"));
    ASSERT_FALSE(reading.error) << describeTraceError(*reading.error);
    const auto profiles = decodeProfiles(contents(tracesDirectory() / "profiles.json"));
    ASSERT_TRUE(profiles);
    const std::filesystem::path explained = base.string() + ".explained";
    ASSERT_TRUE(std::filesystem::exists(explained)) << explained;
    EXPECT_EQ(TraceReplay::run(reading.lines, profiles, TraceReplay::Detail::explained),
              contents(explained));
}

TEST_P(GoldenTrace, SaysWhatItShows) {
    const std::string text = contents(tracesDirectory() / (GetParam() + ".trace"));
    EXPECT_NE(text.find("\n# "), std::string::npos) << "a golden trace explains itself";
}

INSTANTIATE_TEST_SUITE_P(Traces, GoldenTrace, ::testing::ValuesIn(traceNames()),
                         [](const ::testing::TestParamInfo<std::string>& trace) {
                             std::string name = trace.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

TEST(GoldenTraces, CoverTheSelfCheckTheFlowsAndRealisticSequences) {
    const std::vector<std::string> names = traceNames();
    const auto count = [&](const std::string& prefix) {
        return std::ranges::count_if(
            names, [&](const std::string& name) { return name.starts_with(prefix); });
    };
    EXPECT_EQ(count("selfcheck-"), 7);
    EXPECT_EQ(count("flow-"), 4);
    EXPECT_GE(count("real-"), 4);
}

}  // namespace
}  // namespace tactora
