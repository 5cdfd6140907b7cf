#pragma once

#include <cstdint>
#include <vector>

#include "core/app/ControllerObserver.h"
#include "core/score/ScoreCard.h"

namespace tactora {

// Collects, during a replay, the gestures that took effect: a tap when its action runs, a
// click when it is recognised with its fingers (what the click then does is the profile's
// business). Main thread only, as every observer.
class ScoreObserver final : public ControllerObserver {
  public:
    const std::vector<Firing>& firings() const { return firings_; }

    void gestureRecognised(const GestureNote& note) override;
    void actionPerformed(const ActionNote& note) override;

  private:
    struct PendingTap {
        std::int64_t fingers = 0;
        double recognisedAt = 0;
    };

    std::vector<Firing> firings_;
    std::vector<PendingTap> pending_;
};

}  // namespace tactora
