#include "core/moregestures/TapHold.h"

namespace tactora {

std::optional<TapHold::Change> TapHold::update(std::span<const Finger> frame, double time) {
    switch (phase_) {
        case Phase::armed:
            if (frame.size() == 1 && time - tapEnded_ <= landingGap) {
                landing_ = ContactPoint::of(frame[0]);
                landedAt_ = time;
                phase_ = Phase::landed;
            } else {
                phase_ = Phase::idle;
            }
            return std::nullopt;
        case Phase::landed:
            if (frame.size() != 1 || frame[0].id != landing_.id || landing_.isLeftBy(frame[0])) {
                phase_ = Phase::idle;
                return std::nullopt;
            }
            if (time - landedAt_ > holdAfter) {
                phase_ = Phase::holding;
                return Change::began;
            }
            return std::nullopt;
        case Phase::holding:
            // Other fingers may come and go; the hold lasts as long as its own finger rests.
            if (findFinger(frame, landing_.id) == nullptr) {
                return leave(Phase::spent);
            }
            return std::nullopt;
        case Phase::idle:
        case Phase::spent:
            return std::nullopt;
    }
    return std::nullopt;
}

std::optional<TapHold::Change> TapHold::touchEnded(double time, bool tapped) {
    const std::optional<Change> ended = leave(tapped ? Phase::armed : Phase::idle);
    tapEnded_ = time;
    return ended;
}

std::optional<TapHold::Change> TapHold::physicalClick() {
    switch (phase_) {
        case Phase::idle:
            return std::nullopt;
        case Phase::armed:
            // No finger is down: there is no touch for the click to spoil, only the tap's lead.
            phase_ = Phase::idle;
            return std::nullopt;
        case Phase::landed:
        case Phase::holding:
        case Phase::spent:
            return leave(Phase::spent);
    }
    return std::nullopt;
}

std::optional<TapHold::Change> TapHold::cancel() {
    return leave(Phase::idle);
}

std::optional<TapHold::Change> TapHold::leave(Phase next) {
    const bool held = phase_ == Phase::holding;
    phase_ = next;
    return held ? std::optional<Change>(Change::ended) : std::nullopt;
}

}  // namespace tactora
