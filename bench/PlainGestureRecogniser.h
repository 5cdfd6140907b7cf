#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "core/gestures/Finger.h"

namespace tactora::bench {

// The tap recogniser's rules written the plain way, as a yardstick: the benchmark runs it beside
// GestureState, and a test checks that both decide every sequence alike. The origins live in a
// std::map that every sequence builds anew, and each frame arrives as a new std::vector.
//
// Not part of the program. Not thread-safe.
class PlainGestureRecogniser {
  public:
    // The same contract as GestureState::update: the tap's finger count when this (empty) frame
    // ends a qualifying sequence, otherwise nothing.
    std::optional<std::int64_t> update(std::vector<Finger> frame, double time);

    void physicalClick();
    void reset();

  private:
    std::int64_t count_ = 0;
    std::optional<double> began_;
    std::int64_t peak_ = 0;
    std::map<std::int64_t, std::pair<double, double>> origins_;
    bool moved_ = false;
    bool clicked_ = false;
    bool invalid_ = false;
};

}  // namespace tactora::bench
