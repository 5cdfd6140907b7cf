#include "PlainGestureRecogniser.h"

#include <algorithm>
#include <cmath>

namespace tactora::bench {

namespace {

constexpr double shortestTap = 0.035;
constexpr double longestTap = 0.3;
constexpr double movementTolerance = 0.045;
constexpr std::int64_t maxFingers = 4;

}  // namespace

std::optional<std::int64_t> PlainGestureRecogniser::update(std::vector<Finger> frame, double time) {
    count_ = static_cast<std::int64_t>(frame.size());
    if (frame.empty()) {
        std::optional<std::int64_t> result;
        if (began_) {
            const double duration = time - *began_;
            if (duration >= shortestTap && duration <= longestTap && !clicked_ && !moved_ &&
                !invalid_ && peak_ >= 1 && peak_ <= maxFingers) {
                result = peak_;
            }
        }
        reset();
        return result;
    }
    if (!began_) {
        began_ = time;
        clicked_ = false;
    }
    peak_ = std::max(peak_, count_);
    if (count_ > maxFingers) {
        invalid_ = true;
    }
    for (const Finger& finger : frame) {
        const auto found = origins_.find(finger.id);
        if (found == origins_.end()) {
            origins_[finger.id] = {finger.x, finger.y};
        } else if (std::hypot(finger.x - found->second.first, finger.y - found->second.second) >
                   movementTolerance) {
            moved_ = true;
        }
    }
    return std::nullopt;
}

void PlainGestureRecogniser::physicalClick() {
    clicked_ = true;
}

void PlainGestureRecogniser::reset() {
    *this = PlainGestureRecogniser();
}

}  // namespace tactora::bench
