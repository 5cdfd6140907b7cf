#include "core/score/CorpusScore.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "core/app/ControllerObserver.h"
#include "core/replay/TraceReplay.h"
#include "core/score/ScoreObserver.h"
#include "core/trace/TraceNumbers.h"

namespace tactora {

namespace {

std::string fixed(double value, int decimals) {
    return trace::formatFixed(value, decimals);
}

std::string milliseconds(const std::vector<double>& latencies, double fraction) {
    const std::optional<double> value = percentile(latencies, fraction);
    return value ? fixed(std::round(*value * 1000), 0) : "-";
}

std::string latencies(const GestureFigures& figures) {
    return " latency-median=" + milliseconds(figures.latencies, 0.5) +
           " latency-p95=" + milliseconds(figures.latencies, 0.95);
}

std::string counts(const GestureFigures& figures) {
    return "intended=" + std::to_string(figures.intended) +
           " recognised=" + std::to_string(figures.recognised) +
           " wrong=" + std::to_string(figures.wrong) +
           " recall=" + fixed(figures.recall() * 100, 2) + '%';
}

constexpr std::array<AccidentKind, 8> accidentKinds = {
    AccidentKind::palm,        AccidentKind::thumb,      AccidentKind::scroll,
    AccidentKind::scrollGraze, AccidentKind::reposition, AccidentKind::clickLift,
    AccidentKind::drumming,    AccidentKind::pickUp};

}  // namespace

ScoreCard scoreTraces(const std::vector<LabelledTrace>& sessions,
                      const std::optional<std::vector<WorkProfile>>& profiles,
                      const ReplayRules& rules) {
    ScoreCard card;
    for (const LabelledTrace& session : sessions) {
        ScoreObserver observer;
        const std::array<ControllerObserver*, 1> watchers = {&observer};
        TraceReplay::run(session.lines, profiles, TraceReplay::Detail::decisions, watchers, rules);
        const double seconds =
            session.lines.empty() ? 0 : session.lines.back().time - session.lines.front().time;
        card.add(session.labels, observer.firings(), seconds);
    }
    return card;
}

std::vector<NamedRules> comparedRules() {
    const MisfireOptions recommended = MisfireOptions::recommended();
    MisfireOptions quiet;
    quiet.quietAfterActivity = MisfireOptions::defaultQuietAfterActivity;
    MisfireOptions large;
    large.ignoreLargeContacts = true;
    MisfireOptions edges;
    edges.edgeBands = MisfireOptions::defaultEdgeBands;
    MisfireOptions fingertips;
    fingertips.fingertipsOnly = true;
    MisfireOptions forget;
    forget.forgetEarlierActivity = true;
    MisfireOptions drumming;
    drumming.ignoreDrumming = true;
    return {{"default", {}},
            {"quiet-after-activity", {.options = quiet, .thresholds = {}}},
            {"ignore-palms-and-thumbs", {.options = large, .thresholds = {}}},
            {"edge-bands", {.options = edges, .thresholds = {}}},
            {"fingertips-only", {.options = fingertips, .thresholds = {}}},
            {"forget-earlier-activity", {.options = forget, .thresholds = {}}},
            {"ignore-drumming", {.options = drumming, .thresholds = {}}},
            {"recommended", {.options = recommended, .thresholds = {}}}};
}

std::string formatComparison(const std::vector<NamedRules>& rules,
                             const std::vector<ScoreCard>& cards) {
    std::string text;
    for (std::size_t index = 0; index < rules.size() && index < cards.size(); ++index) {
        const ScoreCard& card = cards.at(index);
        const GestureFigures total = card.total();
        text += rules.at(index).name + " recall=" + fixed(total.recall() * 100, 2) +
                "% wrong=" + std::to_string(total.wrong) +
                " false-positives=" + std::to_string(card.falsePositives()) +
                " false-positives-per-hour=" + fixed(card.falsePositivesPerHour(), 2) +
                latencies(total) + '\n';
    }
    return text;
}

std::string formatScore(const ScoreCard& card) {
    std::string text;
    for (std::size_t index = 0; index < card.gestures().size(); ++index) {
        const GestureFigures& figures = card.gestures().at(index);
        const bool tap = index < 4;
        text += (tap ? "tap-" : "click-") + std::to_string(index % 4 + 1) + ' ' + counts(figures);
        text += (tap ? latencies(figures) : std::string()) + '\n';
    }
    for (const AccidentKind kind : accidentKinds) {
        const AccidentFigures& figures = card.accidents().at(static_cast<std::size_t>(kind));
        text += "accident " + std::string(accidentWord(kind)) +
                " touches=" + std::to_string(figures.touches) +
                " fired=" + std::to_string(figures.fired) + '\n';
    }
    const GestureFigures total = card.total();
    text += "total " + counts(total) + " false-positives=" + std::to_string(card.falsePositives()) +
            " false-positives-per-hour=" + fixed(card.falsePositivesPerHour(), 2) +
            " unlabelled=" + std::to_string(card.unlabelledFirings()) +
            " hours=" + fixed(card.hours(), 2) + latencies(total) + '\n';
    return text;
}

}  // namespace tactora
