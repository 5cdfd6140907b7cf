// The further gestures' recognisers run beside the tap recogniser on every contact frame. These
// measure the pair per frame, with no further slot mapped (which must cost what the tap
// recogniser alone costs, in GestureStateBenchmark.cpp: steadyFrames and wholeTaps) and with
// every one mapped (which must stay within twice that).
#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

#include "core/gestures/GestureState.h"
#include "core/moregestures/MoreGestures.h"

namespace {

using tactora::Finger;
using tactora::GestureState;
using tactora::MoreGestures;
using tactora::MoreGestureSettings;

std::vector<Finger> handOf(std::int64_t fingers, double offset) {
    std::vector<Finger> frame;
    for (std::int64_t id = 0; id < fingers; ++id) {
        frame.emplace_back(id, 0.1 + 0.05 * static_cast<double>(id) + offset, 0.5);
    }
    return frame;
}

MoreGestureSettings settingsFor(const benchmark::State& state) {
    return state.range(1) != 0 ? MoreGestureSettings::all() : MoreGestureSettings();
}

// Fingers resting on the surface, jittering within the movement tolerance.
void steadyFramesWithMore(benchmark::State& state) {
    const std::int64_t fingers = state.range(0);
    const std::vector<Finger> even = handOf(fingers, 0.0);
    const std::vector<Finger> odd = handOf(fingers, 0.001);
    GestureState gesture;
    MoreGestures more;
    more.configure(settingsFor(state));
    double time = 0.0;
    const auto first = gesture.update(even, time);
    more.update(even, time, gesture, first);
    bool flip = false;
    for (auto _ : state) {
        time += 0.008;
        flip = !flip;
        const std::vector<Finger>& frame = flip ? odd : even;
        const auto tap = gesture.update(frame, time);
        benchmark::DoNotOptimize(more.update(frame, time, gesture, tap));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(steadyFramesWithMore)->ArgsProduct({{1, 4, 16}, {0, 1}})->ArgNames({"fingers", "all"});

// A complete tap: fingers land, rest for a few frames and lift.
void wholeTapsWithMore(benchmark::State& state) {
    const std::int64_t fingers = state.range(0);
    const std::vector<Finger> down = handOf(fingers, 0.0);
    const std::vector<Finger> lifted;
    GestureState gesture;
    MoreGestures more;
    more.configure(settingsFor(state));
    double time = 0.0;
    for (auto _ : state) {
        for (int frame = 0; frame < 10; ++frame) {
            const auto tap = gesture.update(down, time);
            more.update(down, time, gesture, tap);
            time += 0.01;
        }
        const auto tap = gesture.update(lifted, time);
        benchmark::DoNotOptimize(more.update(lifted, time, gesture, tap));
        time += 1.0;
    }
    state.SetItemsProcessed(state.iterations() * 11);
}
BENCHMARK(wholeTapsWithMore)->ArgsProduct({{1, 4, 16}, {0, 1}})->ArgNames({"fingers", "all"});

// Two fingers swiping: the recognisers' busiest case, measured until the swipe and after it.
void swipesWithMore(benchmark::State& state) {
    std::vector<std::vector<Finger>> frames;
    for (int step = 0; step < 20; ++step) {
        frames.push_back({{1, 0.3 + 0.02 * step, 0.5}, {2, 0.4 + 0.02 * step, 0.5}});
    }
    frames.emplace_back();
    GestureState gesture;
    MoreGestures more;
    more.configure(settingsFor(state));
    double time = 0.0;
    for (auto _ : state) {
        for (const std::vector<Finger>& frame : frames) {
            const auto tap = gesture.update(frame, time);
            benchmark::DoNotOptimize(more.update(frame, time, gesture, tap));
            time += 0.01;
        }
        time += 1.0;
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(frames.size()));
}
BENCHMARK(swipesWithMore)->ArgsProduct({{2}, {0, 1}})->ArgNames({"fingers", "all"});

// The same swipe through the tap recogniser alone, as the yardstick for the one above.
void swipes(benchmark::State& state) {
    std::vector<std::vector<Finger>> frames;
    for (int step = 0; step < 20; ++step) {
        frames.push_back({{1, 0.3 + 0.02 * step, 0.5}, {2, 0.4 + 0.02 * step, 0.5}});
    }
    frames.emplace_back();
    GestureState gesture;
    double time = 0.0;
    for (auto _ : state) {
        for (const std::vector<Finger>& frame : frames) {
            benchmark::DoNotOptimize(gesture.update(frame, time));
            time += 0.01;
        }
        time += 1.0;
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(frames.size()));
}
BENCHMARK(swipes);

}  // namespace
