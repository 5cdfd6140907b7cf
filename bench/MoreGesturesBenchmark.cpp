// The further gestures' recognisers run beside the tap recogniser on every contact frame. These
// measure, per frame and on the same frames, the tap recogniser alone (mode 0, what a frame cost
// before those gestures), the pair with no further slot mapped (mode 1, which must cost the
// same) and with every one mapped (mode 2, which must stay within twice that).
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

enum Mode : std::int64_t { alone = 0, noneMapped = 1, allMapped = 2 };

MoreGestureSettings settingsFor(benchmark::State& state) {
    static constexpr const char* labels[] = {"tap recogniser alone", "none mapped", "all mapped"};
    state.SetLabel(labels[state.range(1)]);
    return state.range(1) == allMapped ? MoreGestureSettings::all() : MoreGestureSettings();
}

// One frame through the tap recogniser, and through the further gestures unless measuring the
// tap recogniser alone.
struct Pair {
    GestureState gesture;
    MoreGestures more;
    bool alone = false;

    explicit Pair(benchmark::State& state) : alone(state.range(1) == Mode::alone) {
        more.configure(settingsFor(state));
    }

    void feed(const std::vector<Finger>& frame, double time) {
        const auto tap = gesture.update(frame, time);
        if (alone) {
            benchmark::DoNotOptimize(tap);
            return;
        }
        benchmark::DoNotOptimize(more.update(frame, time, gesture, tap));
    }
};

// Fingers resting on the surface, jittering within the movement tolerance.
void steadyFramesWithMore(benchmark::State& state) {
    const std::int64_t fingers = state.range(0);
    const std::vector<Finger> even = handOf(fingers, 0.0);
    const std::vector<Finger> odd = handOf(fingers, 0.001);
    Pair pair(state);
    double time = 0.0;
    pair.feed(even, time);
    bool flip = false;
    for (auto _ : state) {
        time += 0.008;
        flip = !flip;
        pair.feed(flip ? odd : even, time);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(steadyFramesWithMore)
    ->ArgsProduct({{1, 4, 16}, {alone, noneMapped, allMapped}})
    ->ArgNames({"fingers", "mode"});

// A complete tap: fingers land, rest for a few frames and lift.
void wholeTapsWithMore(benchmark::State& state) {
    const std::int64_t fingers = state.range(0);
    const std::vector<Finger> down = handOf(fingers, 0.0);
    const std::vector<Finger> lifted;
    Pair pair(state);
    double time = 0.0;
    for (auto _ : state) {
        for (int frame = 0; frame < 10; ++frame) {
            pair.feed(down, time);
            time += 0.01;
        }
        pair.feed(lifted, time);
        time += 1.0;
    }
    state.SetItemsProcessed(state.iterations() * 11);
}
BENCHMARK(wholeTapsWithMore)
    ->ArgsProduct({{1, 4, 16}, {alone, noneMapped, allMapped}})
    ->ArgNames({"fingers", "mode"});

// Two fingers swiping: the recognisers' busiest case, measured until the swipe and after it.
void swipesWithMore(benchmark::State& state) {
    std::vector<std::vector<Finger>> frames;
    for (int step = 0; step < 20; ++step) {
        frames.push_back({{1, 0.3 + 0.02 * step, 0.5}, {2, 0.4 + 0.02 * step, 0.5}});
    }
    frames.emplace_back();
    Pair pair(state);
    double time = 0.0;
    for (auto _ : state) {
        for (const std::vector<Finger>& frame : frames) {
            pair.feed(frame, time);
            time += 0.01;
        }
        time += 1.0;
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(frames.size()));
}
BENCHMARK(swipesWithMore)
    ->ArgsProduct({{2}, {alone, noneMapped, allMapped}})
    ->ArgNames({"fingers", "mode"});

}  // namespace
