#include "core/liveview/TouchSurface.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/localization/Localizer.h"

namespace tactora {

namespace {

std::string fingersText(std::int64_t fingers) {
    return fingers == 1 ? L("finger.one") : L("finger.many", fingers);
}

std::string gestureText(GestureKind kind, std::int64_t fingers) {
    return L(kind == GestureKind::tap ? "gesture.tap" : "gesture.click", fingers);
}

}  // namespace

std::optional<SurfaceContact> TouchSurface::place(double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return std::nullopt;
    }
    return SurfaceContact{.left = std::clamp(x, 0.0, 1.0), .top = std::clamp(1.0 - y, 0.0, 1.0)};
}

void TouchSurface::frame(std::span<const Finger> fingers, double at) {
    frameAt_ = at;
    fingers_ = static_cast<std::int64_t>(fingers.size());
    contactCount_ = 0;
    for (const Finger& finger : fingers) {
        if (contactCount_ == contacts_.size()) {
            break;
        }
        if (const std::optional<SurfaceContact> contact = place(finger.x, finger.y)) {
            contacts_.at(contactCount_++) = *contact;
        }
    }
}

void TouchSurface::gesture(GestureKind kind, std::int64_t fingers, double at) {
    last_ = Gesture{
        .kind = kind, .fingers = fingers, .action = std::nullopt, .until = at + highlightDuration};
    ++gestureRevision_;
}

void TouchSurface::action(const std::string& name, double at) {
    if (!last_) {
        return;
    }
    last_->action = name;
    last_->until = std::max(last_->until, at + highlightDuration);
    ++gestureRevision_;
}

std::optional<double> TouchSurface::highlightEnd() const {
    if (!last_) {
        return std::nullopt;
    }
    return last_->until;
}

const SurfaceSnapshot& TouchSurface::snapshot(double now) {
    const bool fresh = frameAt_ && now - *frameAt_ < contactLifetime;
    snapshot_.contactCount = fresh ? contactCount_ : 0;
    const auto shown = static_cast<std::ptrdiff_t>(snapshot_.contactCount);
    std::copy_n(contacts_.begin(), shown, snapshot_.contactStorage.begin());
    // Unused places are cleared, so that equal snapshots compare equal.
    std::fill(snapshot_.contactStorage.begin() + shown, snapshot_.contactStorage.end(),
              SurfaceContact{});
    snapshot_.fingers = fresh ? fingers_ : 0;
    snapshot_.highlighted = last_ && now < last_->until;
    updateTexts();
    return snapshot_;
}

void TouchSurface::updateTexts() {
    if (shownFingers_ == snapshot_.fingers && shownRevision_ == gestureRevision_) {
        return;
    }
    if (shownFingers_ != snapshot_.fingers) {
        snapshot_.fingersText = fingersText(snapshot_.fingers);
    }
    if (shownRevision_ != gestureRevision_) {
        snapshot_.gestureText = last_ ? gestureText(last_->kind, last_->fingers) : "";
        snapshot_.actionText = last_ && last_->action ? *last_->action : "";
    }
    if (!last_) {
        snapshot_.accessibilityText = L("surface.idle", snapshot_.fingers);
    } else if (!last_->action) {
        snapshot_.accessibilityText =
            L("surface.gesture", snapshot_.fingers, snapshot_.gestureText);
    } else {
        snapshot_.accessibilityText =
            L("surface.action", snapshot_.fingers, snapshot_.gestureText, snapshot_.actionText);
    }
    shownFingers_ = snapshot_.fingers;
    shownRevision_ = gestureRevision_;
}

}  // namespace tactora
