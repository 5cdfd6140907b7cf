#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/score/LabelFile.h"
#include "core/trace/TraceFormat.h"
#include "core/trace/TraceReader.h"
#include "corpus/Corpus.h"
#include "corpus/Dice.h"
#include "corpus/HandModel.h"

namespace tactora::corpus {
namespace {

const std::vector<Session>& wholeCorpus() {
    static const std::vector<Session> sessions = generate(CorpusShape{});
    return sessions;
}

std::string written(const Session& session) {
    std::string text = trace::header() + '\n';
    for (const TraceLine& line : session.lines) {
        text += trace::formatLine(line) + '\n';
    }
    return text;
}

TEST(Dice, TheSameSeedDrawsTheSameNumbersEverywhere) {
    Dice dice(17);
    // The engine's sequence is fixed by the standard; these are its first draws as computed here.
    const double first = dice.unit();
    Dice again(17);
    EXPECT_EQ(again.unit(), first);
    EXPECT_GE(first, 0.0);
    EXPECT_LT(first, 1.0);
    Dice other(18);
    EXPECT_NE(other.unit(), first);
}

TEST(Dice, StaysWithinItsBounds) {
    Dice dice(3);
    for (int draw = 0; draw < 10000; ++draw) {
        const double within = dice.normalWithin(0, 1, -0.5, 0.5);
        EXPECT_GE(within, -0.5);
        EXPECT_LE(within, 0.5);
        const std::int64_t integer = dice.integer(2, 4);
        EXPECT_GE(integer, 2);
        EXPECT_LE(integer, 4);
    }
}

TEST(Corpus, IsTheSameForTheSameSeedAndDiffersForAnother) {
    const Session one = generateSession(5, 100, 2);
    const Session two = generateSession(5, 100, 2);
    const Session other = generateSession(6, 100, 2);
    EXPECT_EQ(written(one), written(two));
    EXPECT_EQ(labels::write(one.labels), labels::write(two.labels));
    EXPECT_NE(written(one), written(other));
}

TEST(Corpus, HoldsAFewHoursOfUse) {
    double seconds = 0;
    for (const Session& session : wholeCorpus()) {
        seconds += session.lines.back().time - session.lines.front().time;
    }
    EXPECT_GT(seconds / 3600, 2.5);
    EXPECT_LT(seconds / 3600, 3.5);
}

TEST(Corpus, EverySessionReadsBackExactlyAsATrace) {
    for (const Session& session : wholeCorpus()) {
        const TraceReading reading = readTrace(written(session));
        ASSERT_FALSE(reading.error) << session.name;
        EXPECT_EQ(reading.lines, session.lines) << session.name;
        const labels::Reading labelled = labels::read(labels::write(session.labels));
        ASSERT_FALSE(labelled.errorLine) << session.name;
        EXPECT_EQ(labelled.labels, session.labels) << session.name;
    }
}

TEST(Corpus, EveryContactLiesInsideALabelledTouch) {
    for (const Session& session : wholeCorpus()) {
        for (const TraceLine& line : session.lines) {
            const auto* frame = std::get_if<TraceFrame>(&line.event);
            if (frame == nullptr || frame->fingers.empty()) {
                continue;
            }
            const bool labelled =
                std::any_of(session.labels.begin(), session.labels.end(), [&](const auto& label) {
                    return label.start <= line.time && line.time <= label.end;
                });
            EXPECT_TRUE(labelled) << session.name << " at " << line.time;
        }
    }
}

TEST(Corpus, FramesComeAboutNinetyTimesASecondWithJitter) {
    const Session& session = wholeCorpus().front();
    std::vector<double> intervals;
    double previous = -1;
    for (const TraceLine& line : session.lines) {
        const auto* frame = std::get_if<TraceFrame>(&line.event);
        if (frame == nullptr) {
            continue;
        }
        if (previous >= 0 && line.time - previous < 0.02) {
            intervals.push_back(line.time - previous);
        }
        previous = frame->fingers.empty() ? -1 : line.time;
    }
    ASSERT_GT(intervals.size(), 1000U);
    double sum = 0;
    for (const double interval : intervals) {
        sum += interval;
    }
    const double mean = sum / static_cast<double>(intervals.size());
    EXPECT_NEAR(1 / mean, 90, 3);
    const auto [shortest, longest] = std::minmax_element(intervals.begin(), intervals.end());
    EXPECT_LT(*shortest, 0.0105);
    EXPECT_GT(*longest, 0.0118);
}

TEST(Corpus, ContactsCarryTheShapesOfFingertipsThumbsAndPalms) {
    float smallest = 100;
    float largest = 0;
    for (const TraceLine& line : wholeCorpus().front().lines) {
        if (const auto* frame = std::get_if<TraceFrame>(&line.event)) {
            ASSERT_EQ(frame->shapes.size(), frame->fingers.size());
            for (const auto& shape : frame->shapes) {
                ASSERT_TRUE(shape);
                smallest = std::min(smallest, shape->size);
                largest = std::max(largest, shape->size);
            }
        }
    }
    EXPECT_LT(smallest, 0.5F);  // a fingertip as it lands
    EXPECT_GT(largest, 3.0F);   // a palm
}

TEST(Corpus, ContainsEveryKindOfTouch) {
    std::set<std::string> kinds;
    for (const Session& session : wholeCorpus()) {
        for (const TouchLabel& label : session.labels) {
            const std::string line = labels::formatLine(label);
            kinds.insert(line.substr(line.find(' ', line.find(' ') + 1) + 1));
        }
    }
    for (const char* kind :
         {"tap 1", "tap 2", "tap 3", "tap 4", "click 1", "click 2", "click 3", "click 4",
          "accident palm", "accident thumb", "accident scroll", "accident scroll-graze",
          "accident reposition", "accident click-lift", "accident drumming", "accident pick-up"}) {
        EXPECT_TRUE(kinds.contains(kind)) << kind;
    }
}

const std::vector<Session>& moreSessions() {
    static const std::vector<Session> sessions = generateMore(CorpusShape{});
    return sessions;
}

TEST(Corpus, TheSessionsOfTheFurtherGesturesHoldEachAsMeantAndWhatCouldBeMistakenForIt) {
    std::map<std::string, std::size_t> kinds;
    for (const Session& session : moreSessions()) {
        EXPECT_EQ(session.name.rfind("more-", 0), 0U) << session.name;
        for (const TouchLabel& label : session.labels) {
            const std::string line = labels::formatLine(label);
            ++kinds[line.substr(line.find(' ', line.find(' ') + 1) + 1)];
        }
    }
    for (const std::string_view name : moreslot::names) {
        EXPECT_GE(kinds["gesture " + std::string(name)], 10U) << name;
    }
    for (const char* kind :
         {"accident short-scroll", "accident resting-finger", "accident rest-after-tap",
          "accident reposition", "accident scroll", "tap 1"}) {
        EXPECT_GE(kinds[kind], 10U) << kind;
    }
}

TEST(Corpus, TheSessionsOfTheFurtherGesturesReadBackAndLabelEveryContact) {
    double seconds = 0;
    for (const Session& session : moreSessions()) {
        seconds += session.lines.back().time - session.lines.front().time;
        const TraceReading reading = readTrace(written(session));
        ASSERT_FALSE(reading.error) << session.name;
        EXPECT_EQ(reading.lines, session.lines) << session.name;
        const labels::Reading labelled = labels::read(labels::write(session.labels));
        ASSERT_FALSE(labelled.errorLine) << session.name;
        EXPECT_EQ(labelled.labels, session.labels) << session.name;
        for (const TraceLine& line : session.lines) {
            const auto* frame = std::get_if<TraceFrame>(&line.event);
            if (frame == nullptr || frame->fingers.empty()) {
                continue;
            }
            EXPECT_TRUE(std::any_of(session.labels.begin(), session.labels.end(),
                                    [&](const auto& label) {
                                        return label.start <= line.time && line.time <= label.end;
                                    }))
                << session.name << " at " << line.time;
        }
    }
    EXPECT_NEAR(seconds / 3600, 1.0, 0.05);
}

TEST(Corpus, TheFirstSessionsHoldNoFurtherGesture) {
    for (const Session& session : wholeCorpus()) {
        for (const TouchLabel& label : session.labels) {
            EXPECT_NE(label.intent, TouchIntent::gesture) << session.name;
        }
    }
}

TEST(HandModel, ASensorDropoutEndsTheSequenceForAFrame) {
    Dice dice(1);
    PlannedContact contact{10.0, 10.3, 0.5, 0.7, 0, 0, fingertip(dice), {10.1}};
    const std::vector<TraceLine> lines = sense({contact}, {}, dice);
    std::size_t empties = 0;
    for (const TraceLine& line : lines) {
        empties += std::get<TraceFrame>(line.event).fingers.empty() ? 1 : 0;
    }
    EXPECT_EQ(empties, 2U);  // the dropout's, and the lift's
    EXPECT_TRUE(std::get<TraceFrame>(lines.back().event).fingers.empty());
}

TEST(HandModel, ContactIdsAreTheLowestFreeNumbers) {
    Dice dice(2);
    const std::vector<TraceLine> lines = sense({{1.0, 1.2, 0.3, 0.7, 0, 0, fingertip(dice), {}},
                                                {1.05, 1.3, 0.6, 0.7, 0, 0, fingertip(dice), {}},
                                                {1.25, 1.4, 0.4, 0.7, 0, 0, fingertip(dice), {}}},
                                               {}, dice);
    std::set<std::int64_t> ids;
    for (const TraceLine& line : lines) {
        for (const Finger& finger : std::get<TraceFrame>(line.event).fingers) {
            ids.insert(finger.id);
        }
    }
    // The third contact lands after the first has lifted and takes its number.
    EXPECT_EQ(ids, (std::set<std::int64_t>{1, 2}));
}

}  // namespace
}  // namespace tactora::corpus
