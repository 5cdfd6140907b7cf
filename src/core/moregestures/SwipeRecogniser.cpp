#include "core/moregestures/SwipeRecogniser.h"

#include <algorithm>
#include <cmath>

namespace tactora {

std::optional<MoreGestureSlot> SwipeRecogniser::measure(std::span<const Finger> frame, double time,
                                                        std::uint32_t wanted) {
    const std::size_t fingers = frame.size();
    if (time - startedAt_ > swipeTime) {
        late_ = true;
        return std::nullopt;
    }
    if (((wanted >> (fingers - 1)) & 1U) == 0) {
        return std::nullopt;
    }
    std::optional<SwipeDirection> direction;
    for (std::size_t i = 0; i < fingers; ++i) {
        const ContactPoint& start = *startOf(frame[i].id);
        const std::optional<SwipeDirection> own = directionOf(start, frame[i]);
        if (!own || (direction && *own != *direction)) {
            return std::nullopt;
        }
        direction = own;
    }
    over_ = true;
    return moreslot::forSwipe(static_cast<std::int64_t>(fingers), *direction);
}

bool SwipeRecogniser::isTheSetInAnyOrder(std::span<const Finger> frame) const {
    return std::ranges::all_of(
        frame, [this](const Finger& finger) { return startOf(finger.id) != nullptr; });
}

const ContactPoint* SwipeRecogniser::startOf(std::int64_t id) const {
    for (std::size_t i = 0; i < started_; ++i) {
        if (starts_[i].id == id) {
            return &starts_[i];
        }
    }
    return nullptr;
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
    late_ = false;
}

}  // namespace tactora
