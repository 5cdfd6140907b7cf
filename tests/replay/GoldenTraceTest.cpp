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

#include "core/app/ControllerObserver.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/profiles/MoreGestureSlot.h"
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

// What the eight gestures decided: every tap and click recognised and every action they carried
// out, with its time; the actions of the gestures beyond them are only counted.
struct Decided {
    std::vector<std::string> seen;
    std::vector<ActionIndex> oneFingerTapActions;
    std::size_t further = 0;
};

class EightGestures final : public ControllerObserver {
  public:
    void gestureRecognised(const GestureNote& note) override {
        decided.seen.push_back(std::to_string(note.time) +
                               (note.kind == GestureKind::tap ? " tap " : " click ") +
                               std::to_string(note.fingers));
    }
    void actionPerformed(const ActionNote& note) override {
        if (note.origin == ActionOrigin::moreGesture) {
            ++decided.further;
            return;
        }
        const bool plainTap = note.origin == ActionOrigin::tap && note.fingers == 1;
        decided.seen.push_back(std::to_string(note.time) + " action " +
                               (plainTap ? "(one-finger tap)" : std::to_string(note.action)));
        if (plainTap) {
            decided.oneFingerTapActions.push_back(note.action);
        }
    }

    Decided decided;
};

// `profiles` with every gesture beyond the eight mapped to Show Desktop; the region taps too
// when `regions`.
std::vector<WorkProfile> withEveryFurtherGesture(std::vector<WorkProfile> profiles, bool regions) {
    for (WorkProfile& profile : profiles) {
        for (std::size_t index = 0; index < moreslot::count; ++index) {
            const auto slot = static_cast<MoreGestureSlot>(index);
            const bool region = slot == MoreGestureSlot::tapLeft ||
                                slot == MoreGestureSlot::tapRight ||
                                slot == MoreGestureSlot::tapTop;
            if (regions || !region) {
                profile.moreGestures.actions[index] = action::showDesktop;
            }
        }
    }
    return profiles;
}

// `profiles` with no gesture beyond the eight mapped.
std::vector<WorkProfile> withoutFurtherGestures(std::vector<WorkProfile> profiles) {
    for (WorkProfile& profile : profiles) {
        profile.moreGestures = MoreGestureMap{};
    }
    return profiles;
}

// What the eight decide when `trace` is replayed with `profiles`.
Decided eightOf(const std::vector<TraceLine>& trace, const std::vector<WorkProfile>& profiles) {
    EightGestures eight;
    ControllerObserver* const watchers[] = {&eight};
    (void)TraceReplay::run(trace, profiles, TraceReplay::Detail::decisions, watchers);
    return eight.decided;
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

// Mapping the gestures beyond the eight never changes what the eight do on touches that are not
// those gestures; a mapped region takes the one-finger taps in it and nothing else.
TEST_P(GoldenTrace, TheEightDecideAlikeWithEveryFurtherGestureMapped) {
    const TraceReading reading = readTrace(contents(tracesDirectory() / (GetParam() + ".trace")));
    ASSERT_FALSE(reading.error) << describeTraceError(*reading.error);
    const auto profiles = decodeProfiles(contents(tracesDirectory() / "profiles.json"));
    ASSERT_TRUE(profiles);

    const std::vector<WorkProfile> none = withoutFurtherGestures(*profiles);
    const Decided alone = eightOf(reading.lines, none);
    const Decided beside = eightOf(reading.lines, withEveryFurtherGesture(none, false));
    const Decided withRegions = eightOf(reading.lines, withEveryFurtherGesture(none, true));

    EXPECT_EQ(beside.seen, alone.seen);
    EXPECT_EQ(beside.oneFingerTapActions, alone.oneFingerTapActions);
    EXPECT_EQ(withRegions.seen, alone.seen);
    EXPECT_EQ(withRegions.oneFingerTapActions,
              std::vector<ActionIndex>(alone.oneFingerTapActions.size(), action::showDesktop));
    EXPECT_EQ(alone.further, 0U);
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

TEST(GoldenTraces, CoverTheSelfCheckTheFlowsRealisticSequencesTheFurtherGesturesAndTrackpads) {
    const std::vector<std::string> names = traceNames();
    const auto count = [&](const std::string& prefix) {
        return std::ranges::count_if(
            names, [&](const std::string& name) { return name.starts_with(prefix); });
    };
    EXPECT_EQ(count("selfcheck-"), 7);
    EXPECT_EQ(count("flow-"), 4);
    EXPECT_GE(count("real-"), 4);
    EXPECT_GE(count("more-"), 5);
    EXPECT_GE(count("trackpad-"), 4);
}

}  // namespace
}  // namespace tactora
