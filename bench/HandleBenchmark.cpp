// The event tap's decision for one event, on each of its paths. The tap runs for every button,
// drag and scroll event in the system and the system disables a slow one.
#include <benchmark/benchmark.h>

#include "app/ControllerHarness.h"

namespace tactora::testing {
namespace {

// A controller switched on, with two fingers resting and the two-finger click made a right
// click.
class Setup {
  public:
    Setup() {
        h.launchAndSwitchOn();
        h.assign(1, action::right);
        h.rest(2);
    }

    ControllerHarness h;
};

void otherDevice(benchmark::State& state) {
    Setup setup;
    FakeTapEvent event(event::leftMouseDragged, 0, otherSender);
    for (auto _ : state) {
        benchmark::DoNotOptimize(setup.h.send(event));
    }
}
BENCHMARK(otherDevice);

void ownMarkedEvent(benchmark::State& state) {
    Setup setup;
    FakeTapEvent event(event::leftMouseDown, 0, mouseSender, marker);
    for (auto _ : state) {
        benchmark::DoNotOptimize(setup.h.send(event));
    }
}
BENCHMARK(ownMarkedEvent);

// Down, drag and up of one press, each rewritten into the right button's.
void rewrittenPress(benchmark::State& state) {
    Setup setup;
    for (auto _ : state) {
        FakeTapEvent down(event::leftMouseDown, 0, mouseSender);
        FakeTapEvent drag(event::leftMouseDragged, 0, mouseSender);
        FakeTapEvent up(event::leftMouseUp, 0, mouseSender);
        benchmark::DoNotOptimize(setup.h.send(down));
        benchmark::DoNotOptimize(setup.h.send(drag));
        benchmark::DoNotOptimize(setup.h.send(up));
    }
}
BENCHMARK(rewrittenPress);

void rewrittenDrag(benchmark::State& state) {
    Setup setup;
    FakeTapEvent down(event::leftMouseDown, 0, mouseSender);
    setup.h.send(down);
    FakeTapEvent drag(event::leftMouseDragged, 0, mouseSender);
    for (auto _ : state) {
        drag.type = event::leftMouseDragged;
        drag.fields.at(event::buttonNumber) = 0;
        benchmark::DoNotOptimize(setup.h.send(drag));
    }
}
BENCHMARK(rewrittenDrag);

}  // namespace
}  // namespace tactora::testing
