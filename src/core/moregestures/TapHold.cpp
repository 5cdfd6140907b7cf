#include "core/moregestures/TapHold.h"

namespace tactora {

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
