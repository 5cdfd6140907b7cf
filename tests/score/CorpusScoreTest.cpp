// The default behaviour's and Recommended's figures on the labelled corpus, kept from getting
// worse. The corpus is made from its seed, so the figures are the same on every system; when a
// change improves them, write the new ones here (and in the README's table).
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "core/score/CorpusScore.h"
#include "corpus/Corpus.h"

namespace tactora {
namespace {

const std::vector<LabelledTrace>& corpusSessions() {
    static const std::vector<LabelledTrace> sessions = [] {
        std::vector<LabelledTrace> made;
        for (corpus::Session& session : corpus::generate(corpus::CorpusShape{})) {
            made.push_back({std::move(session.lines), std::move(session.labels)});
        }
        return made;
    }();
    return sessions;
}

const ScoreCard& defaultScore() {
    static const ScoreCard card = [] {
        setStringTable(nullptr);
        initializeGlobals();
        return scoreTraces(corpusSessions(), std::nullopt);
    }();
    return card;
}

const ScoreCard& recommendedScore() {
    static const ScoreCard card = [] {
        setStringTable(nullptr);
        initializeGlobals();
        return scoreTraces(corpusSessions(), std::nullopt,
                           {.options = MisfireOptions::recommended(), .thresholds = {}});
    }();
    return card;
}

TEST(CorpusScore, TheDefaultRecognisesNoFewerIntendedGestures) {
    const GestureFigures total = defaultScore().total();
    EXPECT_EQ(total.intended, 1640U);
    EXPECT_GE(total.recognised, 1323U);
    EXPECT_LE(total.wrong, 123U);
}

TEST(CorpusScore, TheDefaultFiresNoMoreOftenByAccident) {
    EXPECT_NEAR(defaultScore().hours(), 3.0, 0.01);
    EXPECT_LE(defaultScore().falsePositives(), 277U);
    EXPECT_EQ(defaultScore().unlabelledFirings(), 0U);
}

TEST(CorpusScore, TheDefaultActsNoLaterAfterTheLastLift) {
    const std::vector<double> latencies = defaultScore().total().latencies;
    ASSERT_EQ(latencies.size(), 668U);
    EXPECT_LE(percentile(latencies, 0.5).value_or(1), 0.0855);
    EXPECT_LE(percentile(latencies, 0.95).value_or(1), 0.0915);
    // The tap's wait is the floor: nothing acts before it.
    EXPECT_GE(percentile(latencies, 0.0).value_or(0), 0.0799);
}

TEST(CorpusScore, RecommendedFiresAtLeastNinetyPercentLessOftenByAccident) {
    EXPECT_LE(recommendedScore().falsePositives() * 10, defaultScore().falsePositives());
    EXPECT_LE(recommendedScore().falsePositives(), 16U);
}

TEST(CorpusScore, RecommendedRecognisesNoFewerIntendedGesturesThanTheDefaultLessOnePercent) {
    EXPECT_GE(recommendedScore().total().recall(), defaultScore().total().recall() - 0.01);
    EXPECT_GE(recommendedScore().total().recognised, 1608U);
    EXPECT_LE(recommendedScore().total().wrong, 1U);
}

TEST(CorpusScore, RecommendedActsNoLaterThanTheDefault) {
    const std::vector<double> latencies = recommendedScore().total().latencies;
    EXPECT_LE(percentile(latencies, 0.5).value_or(1), 0.0865);
    EXPECT_LE(percentile(latencies, 0.95).value_or(1), 0.0915);
}

TEST(CorpusScore, EveryGestureAndAccidentIsReported) {
    const std::string text = "\n" + formatScore(defaultScore());
    for (const char* line : {"tap-1 ", "tap-4 ", "click-1 ", "click-4 ", "accident palm ",
                             "accident pick-up ", "total "}) {
        EXPECT_NE(text.find(std::string("\n") + line), std::string::npos) << line;
    }
    EXPECT_NE(text.find("total intended=1640 "), std::string::npos) << text;
}

}  // namespace
}  // namespace tactora
