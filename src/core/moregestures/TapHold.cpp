#include "core/moregestures/TapHold.h"

namespace tactora {

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

}  // namespace tactora
