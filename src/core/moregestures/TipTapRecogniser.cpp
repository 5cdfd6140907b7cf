#include "core/moregestures/TipTapRecogniser.h"

namespace tactora {

std::optional<MoreGestureSlot> TipTapRecogniser::step(std::span<const Finger> frame, double time) {
    if (phase_ == Phase::waiting) {
        // Only a finger that lands alone can rest; a touch that begins with more is no tip tap.
        if (frame.size() == 1) {
            resting_ = ContactPoint::of(frame[0]);
            restingSince_ = time;
            phase_ = Phase::resting;
        } else {
            phase_ = Phase::over;
        }
        return std::nullopt;
    }
    const Finger* rest = findFinger(frame, resting_.id);
    if (rest == nullptr) {
        phase_ = Phase::over;
        return std::nullopt;
    }
    if (frame.size() == 1) {
        return restingAlone(time);
    }
    if (frame.size() > 2) {
        phase_ = Phase::blocked;
        return std::nullopt;
    }
    besideResting(frame[0].id == resting_.id ? frame[1] : frame[0], time);
    return std::nullopt;
}

std::optional<MoreGestureSlot> TipTapRecogniser::restingAlone(double time) {
    const bool tapped = phase_ == Phase::tapping;
    phase_ = Phase::resting;
    if (!tapped) {
        return std::nullopt;
    }
    const double duration = time - tappingSince_;
    if (duration < GestureState::shortestTap || duration > GestureState::longestTap) {
        return std::nullopt;
    }
    return tapping_.x < resting_.x ? MoreGestureSlot::tipTapLeft : MoreGestureSlot::tipTapRight;
}

void TipTapRecogniser::besideResting(const Finger& other, double time) {
    switch (phase_) {
        case Phase::resting:
            // A second finger that comes too soon makes a two-finger touch, not a tip tap.
            if (time - restingSince_ < restBefore) {
                phase_ = Phase::blocked;
                return;
            }
            tapping_ = ContactPoint::of(other);
            tappingSince_ = time;
            phase_ = Phase::tapping;
            return;
        case Phase::tapping:
            if (other.id != tapping_.id) {
                phase_ = Phase::blocked;
            }
            return;
        case Phase::waiting:
        case Phase::blocked:
        case Phase::over:
            return;
    }
}

}  // namespace tactora
