// The benchmark measures the recogniser against a plain version of the same rules; the figures
// mean something only if both decide alike, which this checks on recorded sequences.
#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <variant>
#include <vector>

#include "PlainGestureRecogniser.h"
#include "core/gestures/Finger.h"
#include "core/gestures/GestureState.h"

namespace tactora {
namespace {

using bench::PlainGestureRecogniser;
using Frame = std::vector<Finger>;

struct FrameEvent {
    Frame frame;
    double time = 0;
};
struct ClickEvent {};
struct ResetEvent {};
using Event = std::variant<FrameEvent, ClickEvent, ResetEvent>;
using Recording = std::vector<Event>;

struct Outcome {
    std::vector<std::optional<std::int64_t>> results;  // one per frame
};

// Both recognisers take the same calls, so one replay serves either.
template <typename Recogniser>
Outcome replay(const Recording& recording, Recogniser& gesture) {
    Outcome outcome;
    for (const Event& event : recording) {
        if (const auto* frame = std::get_if<FrameEvent>(&event)) {
            outcome.results.push_back(gesture.update(frame->frame, frame->time));
        } else if (std::holds_alternative<ClickEvent>(event)) {
            gesture.physicalClick();
        } else {
            gesture.reset();
        }
    }
    return outcome;
}

// Both recognisers, each fresh, over the same recording.
void expectAgreement(const Recording& recording, const std::string& name) {
    GestureState gesture;
    PlainGestureRecogniser plain;
    const Outcome fast = replay(recording, gesture);
    const Outcome reference = replay(recording, plain);
    ASSERT_EQ(fast.results.size(), reference.results.size()) << name;
    for (std::size_t i = 0; i < fast.results.size(); ++i) {
        ASSERT_EQ(fast.results[i], reference.results[i]) << name << ", frame " << i;
    }
}

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

FrameEvent at(Frame frame, double time) {
    return {std::move(frame), time};
}

std::size_t tapsIn(const Recording& recording) {
    GestureState gesture;
    std::size_t taps = 0;
    for (const std::optional<std::int64_t>& result : replay(recording, gesture).results) {
        taps += result.has_value() ? 1 : 0;
    }
    return taps;
}

TEST(PlainRecogniserAgreementTest, SelfCheckScenariosAgree) {
    for (std::int64_t n = 1; n <= 4; ++n) {
        expectAgreement({at(fingers(n), 1.0), at({}, 1.15)}, "taps of " + std::to_string(n));
    }
    expectAgreement({at(fingers(1), 2.0), ClickEvent{}, at({}, 2.15)}, "click");
    expectAgreement({at({finger(1)}, 1.0), at({finger(1, 0.6)}, 1.1), at({}, 1.2)}, "movement");
    expectAgreement({at({finger(1)}, 2.0), at({}, 3.0)}, "duration");
    expectAgreement({at(fingers(5), 4.0), at({}, 4.1)}, "too many fingers");
    expectAgreement({at({finger(1)}, 5.0), at({finger(1), finger(2)}, 5.04), at({finger(1)}, 5.1),
                     at({}, 5.16)},
                    "gradual release");
    expectAgreement({at({finger(1)}, 6.0), at({}, 6.01)}, "noise");
}

TEST(PlainRecogniserAgreementTest, EdgesAgree) {
    expectAgreement({at({}, 1.0), ClickEvent{}, at({}, 1.1)}, "empty frames while idle");
    expectAgreement({at({finger(1)}, 1.0), at({}, 1.035)}, "shortest tap");
    expectAgreement({at({finger(1)}, 1.0), at({}, 1.3)}, "longest tap");
    expectAgreement({at({finger(1, 0.5)}, 1.0), at({finger(1, 0.545)}, 1.1), at({}, 1.2)},
                    "movement of exactly the tolerance");
    expectAgreement({ClickEvent{}, at({finger(1)}, 1.0), at({}, 1.1)}, "click before the touch");
    expectAgreement({at(fingers(5), 1.0), at(fingers(4), 1.05), at({}, 1.1)}, "five then four");
    expectAgreement({at({Finger(1, std::nan(""), 0.5)}, 1.0), at({finger(1)}, 1.05), at({}, 1.1)},
                    "a position that is not a number");
    expectAgreement({at({finger(1)}, 1.0), ResetEvent{}, at({finger(2)}, 1.05), at({}, 1.1)},
                    "reset mid-sequence");
}

// Touch sequences of every kind: some taps of one to four fingers, and touches that are too
// short, too long, moving, clicked, crowded, with fingers landing and lifting one after another
// and ids reused within a sequence.
Recording randomRecording(std::mt19937_64& random, int sequences) {
    std::uniform_int_distribution<int> fingerCount(1, 6);
    std::uniform_int_distribution<int> frameCount(1, 14);
    std::uniform_real_distribution<double> frameGap(0.002, 0.04);
    std::uniform_real_distribution<double> position(0.0, 1.0);
    std::uniform_real_distribution<double> drift(-0.012, 0.012);
    std::uniform_int_distribution<int> percent(0, 99);
    std::uniform_int_distribution<std::int64_t> id(0, 7);

    Recording recording;
    double time = 0;
    for (int sequence = 0; sequence < sequences; ++sequence) {
        time += 0.5;
        const int frames = frameCount(random);
        Frame frame;
        for (int n = fingerCount(random); n > 0; --n) {
            frame.emplace_back(id(random), position(random), position(random));
        }
        for (int i = 0; i < frames; ++i) {
            for (Finger& f : frame) {
                f.x += percent(random) < 3 ? 0.08 : drift(random);
                f.y += drift(random);
            }
            if (percent(random) < 10 && frame.size() > 1) {
                frame.pop_back();
            } else if (percent(random) < 10) {
                frame.emplace_back(id(random), position(random), position(random));
            }
            recording.emplace_back(at(frame, time));
            if (percent(random) < 2) {
                recording.emplace_back(ClickEvent{});
            }
            if (percent(random) == 0) {
                recording.emplace_back(ResetEvent{});
            }
            time += frameGap(random);
        }
        recording.emplace_back(at({}, time));
    }
    return recording;
}

TEST(PlainRecogniserAgreementTest, RandomisedSequencesAgree) {
    std::mt19937_64 random(20261122);
    for (int round = 0; round < 40; ++round) {
        const Recording recording = randomRecording(random, 250);
        // A recording without taps would compare nothing worth comparing.
        ASSERT_GT(tapsIn(recording), 10U) << "round " << round;
        expectAgreement(recording, "round " + std::to_string(round));
    }
}

}  // namespace
}  // namespace tactora
