#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/score/TouchLabel.h"
#include "core/trace/TraceLine.h"

// A labelled corpus of touches made by simulated hands: sessions of use, each a trace and the
// labels of every touch in it. Made from a seed, the same on every system; see the README's
// "Misfires" section for what it contains.
namespace tactora::corpus {

struct Session {
    std::string name;  // "session-01", ...
    std::vector<TraceLine> lines;
    std::vector<TouchLabel> labels;
};

struct CorpusShape {
    std::uint64_t seed = 17;
    int sessions = 12;
    double minutesPerSession = 15;
    // The sessions of the gestures beyond the taps and clicks, made apart from the others.
    int moreSessions = 4;
    double minutesPerMoreSession = 15;
};

// Every session of the corpus, in order.
std::vector<Session> generate(const CorpusShape& shape);

// One session, on its own clock starting at `start` seconds of uptime.
Session generateSession(std::uint64_t seed, double start, double minutes);

// The sessions of the gestures beyond the taps and clicks ("more-01", ...), in order: each of
// those gestures as meant, the touches that could be mistaken for them, and some taps, clicks
// and scrolls between. Their own seed stream: making them changes nothing in generate()'s.
std::vector<Session> generateMore(const CorpusShape& shape);

// One such session, on its own clock starting at `start` seconds of uptime.
Session generateMoreSession(std::uint64_t seed, double start, double minutes);

}  // namespace tactora::corpus
