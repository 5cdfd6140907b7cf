#include "core/score/CorpusScore.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "core/actions/ModifierFlags.h"

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

constexpr std::array<AccidentKind, accidentKindCount> accidentKinds = {
    AccidentKind::palm,          AccidentKind::thumb,       AccidentKind::scroll,
    AccidentKind::scrollGraze,   AccidentKind::reposition,  AccidentKind::clickLift,
    AccidentKind::drumming,      AccidentKind::pickUp,      AccidentKind::shortScroll,
    AccidentKind::restingFinger, AccidentKind::restAfterTap};

// The kinds that only touches beside the gestures beyond the taps and clicks have.
bool isMoreAccident(AccidentKind kind) {
    return kind == AccidentKind::shortScroll || kind == AccidentKind::restingFinger ||
           kind == AccidentKind::restAfterTap;
}

std::string moreLines(const ScoreCard& card) {
    std::string text;
    for (std::size_t index = 0; index < moreslot::count; ++index) {
        const MoreFigures& figures = card.more().at(index);
        const double perHour =
            card.hours() > 0 ? static_cast<double>(figures.falsePositives) / card.hours() : 0;
        text += "gesture " + std::string(moreslot::names.at(index)) +
                " intended=" + std::to_string(figures.intended) +
                " recognised=" + std::to_string(figures.recognised) +
                " wrong=" + std::to_string(figures.wrong) +
                " recall=" + fixed(figures.recall() * 100, 2) +
                "% fired=" + std::to_string(figures.fired) +
                " false-positives=" + std::to_string(figures.falsePositives) +
                " false-positives-per-hour=" + fixed(perHour, 2) + '\n';
    }
    return text;
}

}  // namespace

ScoreCard scoreTraces(const std::vector<LabelledTrace>& sessions,
                      const std::optional<std::vector<WorkProfile>>& profiles,
                      const ReplayRules& rules) {
    ScoreCard card;
    for (const LabelledTrace& session : sessions) {
        ScoreObserver observer(profiles && !profiles->empty() ? &profiles->front() : nullptr);
        const std::array<ControllerObserver*, 1> watchers = {&observer};
        TraceReplay::run(session.lines, profiles, TraceReplay::Detail::decisions, watchers, rules);
        const double seconds =
            session.lines.empty() ? 0 : session.lines.back().time - session.lines.front().time;
        card.add(session.labels, observer.firings(), seconds);
    }
    return card;
}

WorkProfile withEveryMoreGesture(WorkProfile profile) {
    constexpr std::uint64_t modifiers =
        ModifierFlags::control | ModifierFlags::option | ModifierFlags::command;
    for (std::size_t index = 0; index < moreslot::count; ++index) {
        profile.moreGestures.actions.at(index) = action::custom;
        profile.moreGestures.shortcuts.at(index) = SavedShortcut(
            static_cast<std::uint16_t>(index), modifiers, std::string(moreslot::names.at(index)));
    }
    return profile;
}

std::vector<WorkProfile> everyMoreGestureMapped(
    const std::optional<std::vector<WorkProfile>>& profiles) {
    std::vector<WorkProfile> mapped = profiles && !profiles->empty()
                                          ? *profiles
                                          : std::vector<WorkProfile>{WorkProfile("Default")};
    mapped.front() = withEveryMoreGesture(std::move(mapped.front()));
    return mapped;
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
        if (isMoreAccident(kind) && figures.touches == 0) {
            continue;
        }
        text += "accident " + std::string(accidentWord(kind)) +
                " touches=" + std::to_string(figures.touches) +
                " fired=" + std::to_string(figures.fired) + '\n';
    }
    const GestureFigures total = card.total();
    text += "total " + counts(total) + " false-positives=" + std::to_string(card.falsePositives()) +
            " false-positives-per-hour=" + fixed(card.falsePositivesPerHour(), 2) +
            " unlabelled=" + std::to_string(card.unlabelledFirings()) +
            " hours=" + fixed(card.hours(), 2) + latencies(total) + '\n';
    if (card.hasMore()) {
        text += moreLines(card);
    }
    return text;
}

}  // namespace tactora
