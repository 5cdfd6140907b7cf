#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/profiles/WorkProfile.h"
#include "core/replay/TraceReplay.h"
#include "core/score/ScoreCard.h"
#include "core/score/TouchLabel.h"
#include "core/trace/TraceLine.h"

namespace tactora {

// One recorded or simulated session of use: its trace and the labels of its touches.
struct LabelledTrace {
    std::vector<TraceLine> lines;
    std::vector<TouchLabel> labels;
};

// Replays every session through the controller (see TraceReplay.h) with `profiles`, or the
// default profile, and `rules`, and scores what took effect against the labels. Main thread;
// the string table must be installed, as for a replay.
ScoreCard scoreTraces(const std::vector<LabelledTrace>& sessions,
                      const std::optional<std::vector<WorkProfile>>& profiles,
                      const ReplayRules& rules = {});

// `profile` with every gesture beyond the taps and clicks mapped, each slot to a custom action
// with a shortcut of its own (so that a score tells them all apart), and nothing else changed.
WorkProfile withEveryMoreGesture(WorkProfile profile);

// The profile list to score with when every gesture beyond the taps and clicks is to be mapped:
// `profiles` (or the default profile) with its first, the active one, mapped so.
std::vector<WorkProfile> everyMoreGestureMapped(
    const std::optional<std::vector<WorkProfile>>& profiles);

// A set of rules the comparison measures, by the name it prints.
struct NamedRules {
    std::string name;
    ReplayRules rules;
};

// What the comparison measures, in order: the default ("default", every option off), each option
// against accidents alone with its default value, and the Recommended combination.
std::vector<NamedRules> comparedRules();

// One line per set of rules, in order, scored on the same sessions:
//
//   <name> recall=<%> wrong=<n> false-positives=<n> false-positives-per-hour=<r>
//          latency-median=<ms> latency-p95=<ms>
//
// (on one line), as in formatScore(). Pure.
std::string formatComparison(const std::vector<NamedRules>& rules,
                             const std::vector<ScoreCard>& cards);

// The figures as the score prints them: one line per intended gesture, per kind of accident,
// and the totals:
//
//   tap-1 intended=<n> recognised=<n> wrong=<n> recall=<%> latency-median=<ms> latency-p95=<ms>
//   ...
//   click-4 intended=<n> recognised=<n> wrong=<n> recall=<%>
//   accident palm touches=<n> fired=<n>
//   ...
//   total intended=<n> recognised=<n> wrong=<n> recall=<%> false-positives=<n>
//         false-positives-per-hour=<r> unlabelled=<n> hours=<h> latency-median=<ms>
//         latency-p95=<ms>
//
// (the total on one line); then, when a touch was meant as a gesture beyond the taps and clicks
// or one took effect, one line for each of those gestures by its slot's name:
//
//   gesture swipe.2.up intended=<n> recognised=<n> wrong=<n> recall=<%> fired=<n>
//           false-positives=<n> false-positives-per-hour=<r>
//
// (on one line). Percentages with two decimals; latencies in whole milliseconds from
// the last finger's lift to the action, "-" when no tap took effect. Pure.
std::string formatScore(const ScoreCard& card);

}  // namespace tactora
