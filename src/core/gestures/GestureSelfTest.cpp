#include "core/gestures/GestureSelfTest.h"

#include <cstdint>
#include <iostream>
#include <optional>
#include <vector>

#include "core/gestures/Finger.h"
#include "core/gestures/GestureDispatchContext.h"
#include "core/gestures/GestureState.h"
#include "core/profiles/Uuid.h"
#include "core/support/Fatal.h"

namespace tactora {

namespace {

constexpr const char* source = "Gestures";

using Frame = std::vector<Finger>;

Finger finger(std::int64_t id, double x = 0.5) {
    return {id, x, 0.5};
}

Frame fingers(std::int64_t n) {
    Frame frame;
    for (std::int64_t id = 1; id <= n; ++id) {
        frame.push_back(finger(id));
    }
    return frame;
}

const Frame lifted;

void checkTapsOfOneToFourFingers() {
    for (std::int64_t n = 1; n <= 4; ++n) {
        GestureState state;
        expect(!state.update(fingers(n), 1.0), source, "a touch in progress is no tap yet");
        expect(state.update(lifted, 1.15) == n, source, "a short still touch is a tap");
    }
}

void checkClickIsNotAlsoATap() {
    GestureState state;
    state.update(fingers(1), 2.0);
    state.physicalClick();
    expect(!state.update(lifted, 2.15), source, "a clicked touch is no tap");
}

void checkMovement() {
    GestureState state;
    state.update(Frame{finger(1)}, 1.0);
    state.update(Frame{finger(1, 0.6)}, 1.1);
    expect(!state.update(lifted, 1.2), source, "a sliding touch is no tap");
}

void checkDuration() {
    GestureState state;
    state.update(Frame{finger(1)}, 2.0);
    expect(!state.update(lifted, 3.0), source, "a long touch is no tap");
}

void checkTooManyFingers() {
    GestureState state;
    state.update(fingers(5), 4.0);
    expect(!state.update(lifted, 4.1), source, "five fingers make no tap");
}

void checkGradualRelease() {
    GestureState state;
    state.update(Frame{finger(1)}, 5.0);
    state.update(Frame{finger(1), finger(2)}, 5.04);
    state.update(Frame{finger(1)}, 5.1);
    expect(state.update(lifted, 5.16) == 2, source, "a gradual release reports the peak");
}

void checkNoise() {
    GestureState state;
    state.update(Frame{finger(1)}, 6.0);
    expect(!state.update(lifted, 6.01), source, "a very short touch is noise");
}

}  // namespace

void runTests() {
    checkTapsOfOneToFourFingers();
    checkClickIsNotAlsoATap();
    checkMovement();
    checkDuration();
    checkTooManyFingers();
    checkGradualRelease();
    checkNoise();
    std::cout << "PASS: taps de 1–4 dedos, clique sem tap duplicado, movimento, duração, excesso "
                 "de dedos, soltura gradual e ruído."
              << std::endl;
}

void dispatchTests() {
    const Uuid profile = Uuid::random();
    const GestureDispatchContext context{3, profile, 42};
    expect(context.isCurrent(3, profile, 42, true, false), source,
           "an unchanged context is current");
    expect(!context.isCurrent(4, profile, 42, true, false), source,
           "a cancellation makes the context stale");
    expect(!context.isCurrent(3, Uuid::random(), 42, true, false), source,
           "a profile change makes the context stale");
    expect(!context.isCurrent(3, profile, 99, true, false), source,
           "a focus change makes the context stale");
    expect(!context.isCurrent(3, profile, 42, false, false), source,
           "a pause makes the context stale");
    expect(!context.isCurrent(3, profile, 42, true, true), source,
           "configuring makes the context stale");
    std::cout << "PASS: pending gestures cancel on pause, profile changes, focus changes and "
                 "configuration."
              << std::endl;
}

}  // namespace tactora
