#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/score/TouchLabel.h"

namespace tactora {

// A gesture that took effect during a replay: a tap whose action ran, or a click that was
// recognised with a finger count.
struct Firing {
    TouchIntent kind = TouchIntent::tap;  // tap or click
    std::int64_t fingers = 0;
    double recognisedAt = 0;  // the tap's end, or the click's press
    double actedAt = 0;       // when its action ran
};

// The figures of one kind of intended gesture.
struct GestureFigures {
    std::size_t intended = 0;
    std::size_t recognised = 0;     // the intended gesture took effect
    std::size_t wrong = 0;          // another gesture took effect instead, or as well
    std::vector<double> latencies;  // taps: from the last lift to the action, seconds

    double recall() const;
};

// The figures of one kind of accident.
struct AccidentFigures {
    std::size_t touches = 0;
    std::size_t fired = 0;  // touches of this kind that made a gesture take effect
};

// Scores replays against their labels: each firing belongs to the innermost labelled touch
// around it (a tap made while the palm rests belongs to the tap, a tap that the palm's own
// lift completes to the palm), with a little slack after a touch's end for the frame that
// reports the lift.
class ScoreCard {
  public:
    // How long after a touch's last lift its gesture may still be recognised.
    static constexpr double slack = 0.06;

    // One session: its labels, what took effect, and how long it lasted.
    void add(const std::vector<TouchLabel>& labels, const std::vector<Firing>& firings,
             double seconds);

    // Taps with 1...4 fingers, then clicks with 1...4.
    const std::array<GestureFigures, 8>& gestures() const { return gestures_; }
    const std::array<AccidentFigures, 8>& accidents() const { return accidents_; }
    GestureFigures total() const;
    std::size_t falsePositives() const;
    std::size_t unlabelledFirings() const { return unlabelled_; }
    double hours() const { return seconds_ / 3600; }
    double falsePositivesPerHour() const;

    static std::size_t gestureIndex(TouchIntent kind, std::int64_t fingers);

  private:
    std::array<GestureFigures, 8> gestures_{};
    std::array<AccidentFigures, 8> accidents_{};
    std::size_t unlabelled_ = 0;
    double seconds_ = 0;
};

// The value below which `fraction` of `values` lie (the nearest rank), nothing when there are
// none.
std::optional<double> percentile(std::vector<double> values, double fraction);

}  // namespace tactora
