// With several touch devices in use, each device's frames go to its own recogniser. A second
// device must cost the first one's frame path nothing: the same steady frames of one device are
// measured with that device alone, with a second device known, and with the two devices' frames
// interleaved (the second device's recogniser is then looked up on every other frame).
#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

#include "core/devices/DeviceRecognisers.h"

namespace {

using tactora::DeviceRecognisers;
using tactora::Finger;

constexpr std::uint64_t first = 7;
constexpr std::uint64_t second = 9;

std::vector<Finger> frameOf(std::int64_t fingers, double offset) {
    std::vector<Finger> frame;
    for (std::int64_t id = 0; id < fingers; ++id) {
        frame.emplace_back(id, 0.1 + 0.05 * static_cast<double>(id) + offset, 0.5);
    }
    return frame;
}

// The first device's resting fingers; `others` more devices have sent frames before.
void firstDeviceFrames(benchmark::State& state) {
    const std::int64_t others = state.range(0);
    const std::vector<Finger> even = frameOf(3, 0.0);
    const std::vector<Finger> odd = frameOf(3, 0.001);
    DeviceRecognisers recognisers;
    double time = 0.0;
    for (std::int64_t other = 0; other < others; ++other) {
        recognisers.update(second + static_cast<std::uint64_t>(other), even, time);
    }
    recognisers.update(first, even, time);
    bool flip = false;
    for (auto _ : state) {
        time += 0.008;
        flip = !flip;
        benchmark::DoNotOptimize(recognisers.update(first, flip ? odd : even, time));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(firstDeviceFrames)->ArgName("others")->Arg(0)->Arg(1)->Arg(15);

// Both devices busy: every iteration is one frame of each, so compare half its time with a
// frame of one device alone.
void interleavedFrames(benchmark::State& state) {
    const std::vector<Finger> even = frameOf(3, 0.0);
    const std::vector<Finger> odd = frameOf(3, 0.001);
    DeviceRecognisers recognisers;
    double time = 0.0;
    recognisers.update(first, even, time);
    recognisers.update(second, even, time);
    bool flip = false;
    for (auto _ : state) {
        time += 0.008;
        flip = !flip;
        benchmark::DoNotOptimize(recognisers.update(first, flip ? odd : even, time));
        benchmark::DoNotOptimize(recognisers.update(second, flip ? odd : even, time + 0.001));
    }
    state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(interleavedFrames);

}  // namespace
