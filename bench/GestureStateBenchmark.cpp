// The recogniser runs for every contact frame of the touch surface, so its per-frame cost is
// what matters: a steady stream of frames from resting fingers, and whole taps. Each is measured
// beside the plain version of the same rules (plain...), which builds a new list of fingers for
// every frame and a new map of origins for every sequence.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

#include "PlainGestureRecogniser.h"
#include "core/gestures/GestureState.h"

namespace {

using tactora::Finger;
using tactora::GestureState;
using tactora::bench::PlainGestureRecogniser;

std::vector<Finger> frameOf(std::int64_t fingers, double offset) {
    std::vector<Finger> frame;
    for (std::int64_t id = 0; id < fingers; ++id) {
        frame.emplace_back(id, 0.1 + 0.05 * static_cast<double>(id) + offset, 0.5);
    }
    return frame;
}

// Fingers resting on the surface, jittering within the movement tolerance.
void steadyFrames(benchmark::State& state) {
    const std::int64_t fingers = state.range(0);
    const std::vector<Finger> even = frameOf(fingers, 0.0);
    const std::vector<Finger> odd = frameOf(fingers, 0.001);
    GestureState gesture;
    double time = 0.0;
    gesture.update(even, time);
    bool flip = false;
    for (auto _ : state) {
        time += 0.008;
        flip = !flip;
        benchmark::DoNotOptimize(gesture.update(flip ? odd : even, time));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(steadyFrames)->Arg(1)->Arg(4)->Arg(16);

// A complete tap: fingers land, rest for a few frames and lift.
void wholeTaps(benchmark::State& state) {
    const std::int64_t fingers = state.range(0);
    const std::vector<Finger> down = frameOf(fingers, 0.0);
    const std::vector<Finger> lifted;
    GestureState gesture;
    double time = 0.0;
    for (auto _ : state) {
        for (int frame = 0; frame < 10; ++frame) {
            gesture.update(down, time);
            time += 0.01;
        }
        benchmark::DoNotOptimize(gesture.update(lifted, time));
        time += 1.0;
    }
    state.SetItemsProcessed(state.iterations() * 11);
}
BENCHMARK(wholeTaps)->Arg(1)->Arg(4)->Arg(16);

void plainSteadyFrames(benchmark::State& state) {
    const std::int64_t fingers = state.range(0);
    PlainGestureRecogniser gesture;
    double time = 0.0;
    gesture.update(frameOf(fingers, 0.0), time);
    bool flip = false;
    for (auto _ : state) {
        time += 0.008;
        flip = !flip;
        benchmark::DoNotOptimize(gesture.update(frameOf(fingers, flip ? 0.001 : 0.0), time));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(plainSteadyFrames)->Arg(1)->Arg(4)->Arg(16);

void plainWholeTaps(benchmark::State& state) {
    const std::int64_t fingers = state.range(0);
    PlainGestureRecogniser gesture;
    double time = 0.0;
    for (auto _ : state) {
        for (int frame = 0; frame < 10; ++frame) {
            gesture.update(frameOf(fingers, 0.0), time);
            time += 0.01;
        }
        benchmark::DoNotOptimize(gesture.update(std::vector<Finger>(), time));
        time += 1.0;
    }
    state.SetItemsProcessed(state.iterations() * 11);
}
BENCHMARK(plainWholeTaps)->Arg(1)->Arg(4)->Arg(16);

}  // namespace
