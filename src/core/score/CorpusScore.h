#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/profiles/WorkProfile.h"
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
// default profile, and scores what took effect against the labels. Main thread; the string
// table must be installed, as for a replay.
ScoreCard scoreTraces(const std::vector<LabelledTrace>& sessions,
                      const std::optional<std::vector<WorkProfile>>& profiles);

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
// (the total on one line). Percentages with two decimals; latencies in whole milliseconds from
// the last finger's lift to the action, "-" when no tap took effect. Pure.
std::string formatScore(const ScoreCard& card);

}  // namespace tactora
