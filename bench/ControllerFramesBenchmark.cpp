// A contact frame's whole way through the running program: the sensor's callback, the hop to the
// main queue, the tap recogniser, the further gestures and whatever else watches the frames,
// with no further gesture mapped (mode 0) and with every one mapped (mode 1).
#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/profiles/MoreGestureSlot.h"

namespace tactora::testing {
namespace {

// A controller switched on; with `mapped`, every further gesture does Copy.
class Setup {
  public:
    explicit Setup(benchmark::State& state) {
        const bool mapped = state.range(1) != 0;
        state.SetLabel(mapped ? "all mapped" : "none mapped");
        if (mapped) {
            for (std::size_t slot = 0; slot < moreslot::count; ++slot) {
                h.c().profiles().setMoreAction(action::copy, static_cast<MoreGestureSlot>(slot));
            }
        }
        h.launchAndSwitchOn();
    }

    // One frame of `fingers` fingers side by side, the first at (x, y).
    void frame(std::int32_t fingers, float x, float y) {
        ids_.clear();
        xs_.clear();
        ys_.clear();
        for (std::int32_t i = 0; i < fingers; ++i) {
            ids_.push_back(i + 1);
            xs_.push_back(x + (0.05F * static_cast<float>(i)));
            ys_.push_back(y);
        }
        Controller::frameCallback(fingers, ids_.data(), xs_.data(), ys_.data(), nullptr);
        h.queue.runReady();
    }

    ControllerHarness h;

  private:
    std::vector<std::int32_t> ids_;
    std::vector<float> xs_;
    std::vector<float> ys_;
};

// Fingers resting on the surface, jittering within the movement tolerance.
void controllerSteadyFrames(benchmark::State& state) {
    Setup setup(state);
    const auto fingers = static_cast<std::int32_t>(state.range(0));
    bool flip = false;
    for (auto _ : state) {
        flip = !flip;
        setup.frame(fingers, flip ? 0.3F : 0.301F, 0.5F);
        setup.h.queue.advance(0.008);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(controllerSteadyFrames)->ArgsProduct({{1, 4}, {0, 1}})->ArgNames({"fingers", "mode"});

// Two fingers swiping up across the surface, twenty frames and the lift; the swipe's action, when
// mapped, is carried out once per swipe.
void controllerSwipes(benchmark::State& state) {
    Setup setup(state);
    for (auto _ : state) {
        for (int step = 0; step < 20; ++step) {
            setup.frame(2, 0.4F, 0.2F + (0.03F * static_cast<float>(step)));
            setup.h.queue.advance(0.01);
        }
        setup.frame(0, 0, 0);
        setup.h.queue.advance(1.0);
        // Mapped, every swipe carries out Copy; unmapped, nothing.
        if (setup.h.poster.posted.empty() == (state.range(1) != 0)) {
            state.SkipWithError("the swipe did not do what its mapping says");
            break;
        }
        setup.h.poster.posted.clear();
    }
    state.SetItemsProcessed(state.iterations() * 21);
}
BENCHMARK(controllerSwipes)->ArgsProduct({{2}, {0, 1}})->ArgNames({"fingers", "mode"});

// The Magic Mouse's resting fingers with a trackpad beside it: none (mode 0), a trackpad in use
// with three fingers resting (mode 1), or that trackpad sending a frame after each of the
// mouse's (mode 2; each iteration is then one frame of each device, so compare half its time).
void controllerMouseFramesBesideATrackpad(benchmark::State& state) {
    constexpr std::uint64_t trackpad = 77;
    ControllerHarness h;
    const std::int64_t mode = state.range(0);
    state.SetLabel(mode == 0 ? "mouse alone" : mode == 1 ? "trackpad resting" : "interleaved");
    h.touchDevices.listed = {{.id = trackpad,
                              .kind = TouchDeviceKind::magicTrackpad,
                              .state = TouchDeviceState::off,
                              .name = "Magic Trackpad"}};
    if (mode > 0) {
        h.app->deviceGestures().setUses(h.touchDevices.listed[0], true);
    }
    h.launchAndSwitchOn();
    const std::vector<std::pair<float, float>> resting = {{0.3F, 0.5F}, {0.4F, 0.5F}, {0.5F, 0.5F}};
    h.touchDevices.send(trackpad, resting);
    h.queue.runReady();
    const std::vector<std::int32_t> ids = {1, 2};
    const std::vector<float> even = {0.3F, 0.35F};
    const std::vector<float> odd = {0.301F, 0.351F};
    const std::vector<float> ys = {0.5F, 0.5F};
    bool flip = false;
    for (auto _ : state) {
        flip = !flip;
        Controller::frameCallback(2, ids.data(), flip ? odd.data() : even.data(), ys.data(),
                                  nullptr);
        if (mode == 2) {
            h.touchDevices.send(trackpad, resting);
        }
        h.queue.runReady();
        h.queue.advance(0.008);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(controllerMouseFramesBesideATrackpad)->Arg(0)->Arg(1)->Arg(2)->ArgName("mode");

}  // namespace
}  // namespace tactora::testing
