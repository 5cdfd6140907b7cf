#pragma once

#include <iosfwd>
#include <span>
#include <string>

namespace tactora {

// "--score DIRECTORY [--profile FILE] [--rules NAME | --compare] [--gestures all]": replays
// every NAME.trace in the directory that has its NAME.labels beside it, in the order of their
// names, and prints the figures of what took effect against what the labels say the hands meant
// (see CorpusScore.h) to `out`: with the default rules, or the rules of that name (see
// comparedRules()); with --compare, one line of totals for each of those rules. With --gestures
// all, the active profile (the file's first, or the default) has every gesture beyond the taps
// and clicks mapped (see everyMoreGestureMapped()), and the figures of each of those gestures
// follow. Returns 0; or, when an argument is missing or unknown, the directory holds no labelled
// trace, or a file can't be read or is malformed, prints one sentence that says which and why to
// `err` and returns 1, having printed nothing to `out`. Main thread.
int runScore(std::span<const std::string> arguments, std::ostream& out, std::ostream& err);

}  // namespace tactora
