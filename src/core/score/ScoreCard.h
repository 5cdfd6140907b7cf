#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/score/TouchLabel.h"

namespace tactora {

// A gesture that took effect during a replay: a tap whose action ran, a click that was
// recognised with a finger count, or a gesture beyond those whose action ran.
struct Firing {
    TouchIntent kind = TouchIntent::tap;  // tap, click or gesture
    std::int64_t fingers = 0;
    double recognisedAt = 0;  // the tap's end, the click's press, the gesture's action
    double actedAt = 0;       // when its action ran
    // The gesture beyond the taps and clicks: always for a gesture; for a one-finger tap that
    // carried out its region's action instead of its own, that region's slot.
    std::optional<MoreGestureSlot> more = std::nullopt;
};

// The figures of one kind of intended gesture.
struct GestureFigures {
    std::size_t intended = 0;
    std::size_t recognised = 0;     // the intended gesture took effect
    std::size_t wrong = 0;          // another gesture took effect instead, or as well
    std::vector<double> latencies;  // taps: from the last lift to the action, seconds

    double recall() const;
};

// The figures of one gesture beyond the taps and clicks.
struct MoreFigures {
    std::size_t intended = 0;
    std::size_t recognised = 0;  // the intended gesture took effect
    std::size_t wrong = 0;       // another gesture took effect instead, or as well
    std::size_t fired = 0;       // every time this gesture took effect
    // Times it took effect on a touch not meant as it: an accident, a touch meant as another
    // gesture, or outside every labelled touch. A region's tap is a one-finger tap carrying its
    // region's action: only on an accident or outside every touch is it a false positive.
    std::size_t falsePositives = 0;

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
//
// The figures of the taps and clicks, of the accidents and the totals count only taps and
// clicks (a region's one-finger tap as the one-finger tap it is), so that they can be compared
// with and without the gestures beyond them mapped; those gestures have figures of their own.
class ScoreCard {
  public:
    // How long after a touch's last lift its gesture may still be recognised.
    static constexpr double slack = 0.06;

    // One session: its labels, what took effect, and how long it lasted.
    void add(const std::vector<TouchLabel>& labels, const std::vector<Firing>& firings,
             double seconds);

    // Taps with 1...4 fingers, then clicks with 1...4.
    const std::array<GestureFigures, 8>& gestures() const { return gestures_; }
    const std::array<AccidentFigures, accidentKindCount>& accidents() const { return accidents_; }
    // By slot.
    const std::array<MoreFigures, moreslot::count>& more() const { return more_; }
    // Whether any touch was meant as a gesture beyond the taps and clicks, or any such gesture
    // took effect.
    bool hasMore() const;
    GestureFigures total() const;
    std::size_t falsePositives() const;
    std::size_t unlabelledFirings() const { return unlabelled_; }
    double hours() const { return seconds_ / 3600; }
    double falsePositivesPerHour() const;

    static std::size_t gestureIndex(TouchIntent kind, std::int64_t fingers);

  private:
    std::array<GestureFigures, 8> gestures_{};
    void addMore(const std::vector<TouchLabel>& labels, const Firing& firing,
                 std::optional<std::size_t> found, std::vector<bool>& matched);

    std::array<AccidentFigures, accidentKindCount> accidents_{};
    std::array<MoreFigures, moreslot::count> more_{};
    std::size_t unlabelled_ = 0;
    double seconds_ = 0;
};

// The value below which `fraction` of `values` lie (the nearest rank), nothing when there are
// none.
std::optional<double> percentile(std::vector<double> values, double fraction);

}  // namespace tactora
