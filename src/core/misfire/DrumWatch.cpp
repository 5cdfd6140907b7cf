#include "core/misfire/DrumWatch.h"

#include <algorithm>
#include <cmath>

namespace tactora {

void DrumWatch::began(double now, double x, double y) {
    if (current_) {
        previous_ = current_;
    }
    current_ = Touch{.began = now, .lastLanding = now, .ended = std::nullopt, .x = x, .y = y};
}

void DrumWatch::joined(double landed) {
    if (current_) {
        current_->lastLanding = std::max(current_->lastLanding, landed);
    }
}

void DrumWatch::ended(double now) {
    if (current_ && !current_->ended) {
        current_->ended = now;
    }
}

bool DrumWatch::followsElsewhere(const Touch& earlier, const Touch& later) {
    return earlier.ended && later.began - *earlier.ended < runGap &&
           std::hypot(later.x - earlier.x, later.y - earlier.y) > fingerStep;
}

bool DrumWatch::drumming() const {
    if (!current_) {
        return false;
    }
    if (current_->lastLanding - current_->began > landingSpread) {
        return true;
    }
    return previous_ && followsElsewhere(*previous_, *current_);
}

bool DrumWatch::laterTouchShowsDrumming(double recognisedAt) const {
    return current_ && previous_ && current_->began > recognisedAt && previous_->ended &&
           *previous_->ended <= recognisedAt && followsElsewhere(*previous_, *current_);
}

void DrumWatch::reset() {
    current_.reset();
    previous_.reset();
}

}  // namespace tactora
