#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "core/score/ScoreMode.h"

namespace tactora {
namespace {

class ScoreModeTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setStringTable(nullptr);
        initializeGlobals();
        directory_ =
            std::filesystem::temp_directory_path() /
            ("tactora-score-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
             "-" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::create_directories(directory_);
    }
    void TearDown() override { std::filesystem::remove_all(directory_); }

    void write(const std::string& name, const std::string& text) {
        std::ofstream(directory_ / name, std::ios::binary) << text;
    }

    int score(std::vector<std::string> arguments) {
        out.str("");
        err.str("");
        return runScore(arguments, out, err);
    }

    std::string directory() const { return directory_.string(); }

    std::ostringstream out;
    std::ostringstream err;

  private:
    std::filesystem::path directory_;
};

TEST_F(ScoreModeTest, ScoresEveryLabelledTraceOfTheDirectory) {
    // A two-finger tap meant as one, and a palm's long rest meant as nothing.
    write("a.trace",
          "tactora-trace 1\n1.0 frame 1:0.5,0.5 2:0.6,0.5\n1.1 frame\n"
          "2.0 frame 1:0.5,0.9\n3.0 frame 1:0.5,0.9\n3.0 frame\n");
    write("a.labels", "tactora-labels 1\n1.0 1.1 tap 2\n2.0 3.0 accident palm\n");
    // A trace without labels is not part of the corpus.
    write("b.trace", "tactora-trace 1\n1.0 frame 1:0.5,0.5\n1.1 frame\n");
    ASSERT_EQ(score({"tactora", "--score", directory()}), 0) << err.str();
    EXPECT_EQ(err.str(), "");
    const std::string output = out.str();
    EXPECT_NE(output.find("tap-2 intended=1 recognised=1 wrong=0 recall=100.00% "
                          "latency-median=80 latency-p95=80\n"),
              std::string::npos)
        << output;
    EXPECT_NE(output.find("tap-1 intended=0 recognised=0 wrong=0 recall=100.00%"),
              std::string::npos);
    EXPECT_NE(output.find("accident palm touches=1 fired=0\n"), std::string::npos) << output;
    EXPECT_NE(output.find("total intended=1 recognised=1 wrong=0 recall=100.00% "
                          "false-positives=0 false-positives-per-hour=0.00 unlabelled=0 "
                          "hours=0.00 latency-median=80 latency-p95=80\n"),
              std::string::npos)
        << output;
}

TEST_F(ScoreModeTest, ComparesTheDefaultWithEachOptionOnTheSameTraces) {
    // A thumb brushing the very edge: a tap by default, nothing with the edge bands on.
    write("a.trace", "tactora-trace 1\n1.0 frame 1:0.03,0.5\n1.1 frame\n");
    write("a.labels", "tactora-labels 1\n1.0 1.1 accident thumb\n");
    ASSERT_EQ(score({"tactora", "--score", directory(), "--compare"}), 0) << err.str();
    const std::string output = out.str();
    EXPECT_EQ(output.find("default recall=100.00% wrong=0 false-positives=1 "), 0U) << output;
    EXPECT_NE(output.find("\nedge-bands recall=100.00% wrong=0 false-positives=0 "),
              std::string::npos)
        << output;
    for (const char* name : {"quiet-after-activity", "ignore-palms-and-thumbs", "fingertips-only",
                             "forget-earlier-activity", "recommended"}) {
        EXPECT_NE(output.find(std::string("\n") + name + " recall="), std::string::npos) << name;
    }
}

TEST_F(ScoreModeTest, AnAccidentThatFiresIsAFalsePositive) {
    write("a.trace", "tactora-trace 1\n1.0 frame 1:0.1,0.5\n1.1 frame\n");
    write("a.labels", "tactora-labels 1\n1.0 1.1 accident thumb\n");
    ASSERT_EQ(score({"tactora", "--score", directory()}), 0) << err.str();
    EXPECT_NE(out.str().find("accident thumb touches=1 fired=1\n"), std::string::npos) << out.str();
    EXPECT_NE(out.str().find(" false-positives=1 "), std::string::npos) << out.str();
}

TEST_F(ScoreModeTest, ScoresEveryFurtherGestureWithEverySlotMapped) {
    // A two-finger swipe up, then a one-finger tap on the left half.
    std::string trace = "tactora-trace 1\n";
    for (int step = 0; step <= 10; ++step) {
        const std::string y = std::to_string(0.2 + (0.03 * step));
        trace += std::to_string(1.0 + (0.01 * step)) + " frame 1:0.4," + y + " 2:0.55," + y + "\n";
    }
    trace += "1.11 frame\n3.0 frame 1:0.2,0.5\n3.1 frame\n";
    write("a.trace", trace);
    write("a.labels", "tactora-labels 1\n1.0 1.11 gesture swipe.2.up\n3.0 3.1 gesture tap.left\n");
    ASSERT_EQ(score({"tactora", "--score", directory(), "--gestures", "all"}), 0) << err.str();
    const std::string output = out.str();
    EXPECT_NE(output.find("\ngesture swipe.2.up intended=1 recognised=1 wrong=0 recall=100.00% "
                          "fired=1 false-positives=0 "),
              std::string::npos)
        << output;
    EXPECT_NE(output.find("\ngesture tap.left intended=1 recognised=1 wrong=0 recall=100.00% "
                          "fired=1 false-positives=0 "),
              std::string::npos)
        << output;
    EXPECT_NE(output.find("\ngesture tapHold intended=0 "), std::string::npos) << output;
    // Unmapped, the same touches are a swipe that does nothing and a plain one-finger tap.
    ASSERT_EQ(score({"tactora", "--score", directory()}), 0) << err.str();
    EXPECT_NE(out.str().find("\ngesture swipe.2.up intended=1 recognised=0 wrong=0 recall=0.00% "
                             "fired=0 "),
              std::string::npos)
        << out.str();
    EXPECT_NE(out.str().find("\ngesture tap.left intended=1 recognised=0 wrong=1 "),
              std::string::npos)
        << out.str();
}

TEST_F(ScoreModeTest, SaysWhatIsMissingOrWrong) {
    EXPECT_EQ(score({"tactora", "--score"}), 1);
    EXPECT_EQ(err.str(), "score.usage\n");
    EXPECT_EQ(score({"tactora", "--score", directory(), "--profile"}), 1);
    EXPECT_EQ(err.str(), "score.usage\n");
    EXPECT_EQ(score({"tactora", "--score", directory(), "--gestures", "some"}), 1);
    EXPECT_EQ(err.str(), "score.usage\n");
    EXPECT_EQ(score({"tactora", "--score", directory(), "--gestures"}), 1);
    EXPECT_EQ(err.str(), "score.usage\n");
    EXPECT_EQ(score({"tactora", "--score", directory()}), 1);
    EXPECT_EQ(err.str(), "score.empty\n");
    EXPECT_EQ(score({"tactora", "--score", directory() + "/none"}), 1);
    EXPECT_EQ(err.str(), "replay.unreadable\n");
    write("a.trace", "tactora-trace 1\n1.0 frame\n");
    write("a.labels", "tactora-labels 1\n1.0 0.5 tap 2\n");
    EXPECT_EQ(score({"tactora", "--score", directory()}), 1);
    EXPECT_EQ(err.str(), "score.labels\n");
    EXPECT_EQ(out.str(), "");
    write("a.labels", "tactora-labels 1\n");
    write("a.trace", "tactora-trace 1\n1.0 nonsense\n");
    EXPECT_EQ(score({"tactora", "--score", directory()}), 1);
    EXPECT_NE(err.str().find("a.trace: "), std::string::npos) << err.str();
    write("a.trace", "tactora-trace 1\n1.0 frame\n");
    EXPECT_EQ(score({"tactora", "--score", directory(), "--profile", directory() + "/x.json"}), 1);
    EXPECT_EQ(err.str(), "replay.unreadable\n");
    EXPECT_EQ(out.str(), "");
}

}  // namespace
}  // namespace tactora
