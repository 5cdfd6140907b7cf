#include "core/moregestures/SwipeRecogniser.h"

#include <cmath>

namespace tactora {

std::optional<MoreGestureSlot> SwipeRecogniser::update(std::span<const Finger> frame, double time,
                                                       std::uint32_t wanted) {
    if (over_) {
        return std::nullopt;
    }
    const std::size_t fingers = frame.size();
    if (fingers > starts_.size()) {
        started_ = 0;
        return std::nullopt;
    }
    if (fingers != started_) {
        startFrom(frame, time);
        return std::nullopt;
    }
    std::optional<SwipeDirection> direction;
    bool together = true;
    for (const Finger& finger : frame) {
        const ContactPoint* start = nullptr;
        for (std::size_t i = 0; i < started_; ++i) {
            if (starts_[i].id == finger.id) {
                start = &starts_[i];
            }
        }
        if (start == nullptr) {
            // One finger lifted and another landed between two frames: a new set.
            startFrom(frame, time);
            return std::nullopt;
        }
        const std::optional<SwipeDirection> own = directionOf(*start, finger);
        if (!own || (direction && *own != *direction)) {
            together = false;
        }
        direction = own;
    }
    const bool wantedCount = ((wanted >> (fingers - 1)) & 1U) != 0;
    if (!together || !wantedCount || time - startedAt_ > swipeTime) {
        return std::nullopt;
    }
    over_ = true;
    return moreslot::forSwipe(static_cast<std::int64_t>(fingers), *direction);
}

std::optional<SwipeDirection> SwipeRecogniser::directionOf(const ContactPoint& from,
                                                           const Finger& to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    // A position that is not a number points nowhere.
    if (!std::isfinite(dx) || !std::isfinite(dy)) {
        return std::nullopt;
    }
    if (std::abs(dx) >= std::abs(dy)) {
        if (dx >= swipeDistance) {
            return SwipeDirection::right;
        }
        if (dx <= -swipeDistance) {
            return SwipeDirection::left;
        }
        return std::nullopt;
    }
    if (dy >= swipeDistance) {
        return SwipeDirection::up;
    }
    if (dy <= -swipeDistance) {
        return SwipeDirection::down;
    }
    return std::nullopt;
}

void SwipeRecogniser::startFrom(std::span<const Finger> frame, double time) {
    started_ = frame.size();
    for (std::size_t i = 0; i < started_; ++i) {
        starts_[i] = ContactPoint::of(frame[i]);
    }
    startedAt_ = time;
}

}  // namespace tactora
