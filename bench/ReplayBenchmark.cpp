// Replaying a trace must be quick enough to run many in a test suite: a ten-minute trace, as the
// surface reports it (about 90 frames a second), read from text and replayed through the
// controller.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "core/app/Globals.h"
#include "core/replay/TraceReplay.h"
#include "core/trace/TraceFormat.h"
#include "core/trace/TraceReader.h"

namespace {

using tactora::Finger;
using tactora::TraceFrame;
using tactora::TraceLine;
using tactora::TraceMouseEvent;

constexpr double frameInterval = 1.0 / 90.0;
constexpr double minutes = 10;

// Ten minutes of touches with the surface never quiet for long (about 80 frames a second):
// every second a tap of one to four fingers, a two-finger click, or a long press, and then a
// finger resting for the rest of the second.
std::vector<TraceLine> tenMinutes() {
    std::vector<TraceLine> lines;
    const auto touch = [&](double start, std::int64_t fingers, double length) {
        for (double t = 0; t < length; t += frameInterval) {
            TraceFrame frame;
            for (std::int64_t id = 1; id <= fingers; ++id) {
                frame.fingers.emplace_back(id, 0.3 + 0.1 * static_cast<double>(id), 0.5 + t * 0.01);
            }
            lines.push_back({start + t, std::move(frame)});
        }
        lines.push_back({start + length, TraceFrame{}});
    };
    for (int second = 0; second < static_cast<int>(minutes * 60); ++second) {
        const double start = 1000.0 + second;
        const int kind = second % 6;
        const double length = kind < 4 ? 0.12 : 0.5;
        touch(start, kind < 4 ? kind + 1 : 2, length);
        if (kind == 4) {
            lines.push_back({start + 0.2, TraceMouseEvent{tactora::event::leftMouseDown, 0, true}});
            lines.push_back({start + 0.3, TraceMouseEvent{tactora::event::leftMouseUp, 0, true}});
        }
        touch(start + length + 0.05, 1, 0.9 - length);
    }
    std::ranges::stable_sort(lines, {}, &TraceLine::time);
    return lines;
}

std::string textOf(const std::vector<TraceLine>& lines) {
    std::string text = tactora::trace::header() + "\n";
    for (const TraceLine& line : lines) {
        text += tactora::trace::formatLine(line) + "\n";
    }
    return text;
}

void readTenMinutes(benchmark::State& state) {
    const std::string text = textOf(tenMinutes());
    if (tactora::readTrace(text).error) {
        state.SkipWithError("the generated trace does not read");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(tactora::readTrace(text));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(readTenMinutes)->Unit(benchmark::kMillisecond);

void replayTenMinutes(benchmark::State& state) {
    tactora::initializeGlobals();
    const std::vector<TraceLine> lines = tenMinutes();
    for (auto _ : state) {
        benchmark::DoNotOptimize(tactora::TraceReplay::run(lines, std::nullopt));
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * lines.size()));
}
BENCHMARK(replayTenMinutes)->Unit(benchmark::kMillisecond);

void readAndReplayTenMinutes(benchmark::State& state) {
    tactora::initializeGlobals();
    const std::string text = textOf(tenMinutes());
    for (auto _ : state) {
        const tactora::TraceReading reading = tactora::readTrace(text);
        benchmark::DoNotOptimize(tactora::TraceReplay::run(reading.lines, std::nullopt));
    }
}
BENCHMARK(readAndReplayTenMinutes)->Unit(benchmark::kMillisecond);

}  // namespace
