#include "core/liveview/TouchSurface.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/localization/Localizer.h"
#include "core/reasons/ReasonText.h"

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
    gestureUnannounced_ = true;
    actionUnannounced_ = false;
}

void TouchSurface::action(const std::string& name, double at) {
    if (!last_) {
        return;
    }
    last_->action = name;
    last_->until = std::max(last_->until, at + highlightDuration);
    ++gestureRevision_;
    actionUnannounced_ = true;
}

void TouchSurface::rejected(DropReason reason, double at) {
    reason_ = reason;
    reasonUntil_ = at + reasonDuration;
    reasonUnannounced_ = true;
}

std::optional<double> TouchSurface::reasonEnd() const {
    if (!reason_) {
        return std::nullopt;
    }
    return reasonUntil_;
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
    updateReason(now);
    updateAnnouncement();
    return snapshot_;
}

void TouchSurface::updateReason(double now) {
    const std::optional<DropReason> shown = reason_ && now < reasonUntil_ ? reason_ : std::nullopt;
    if (shown != shownReason_) {
        snapshot_.reasonText = shown ? reasons::reasonText(*shown) : std::string();
        shownReason_ = shown;
    }
}

void TouchSurface::updateAnnouncement() {
    snapshot_.announcement.clear();
    if (snapshot_.highlighted) {
        // Both at once (the window came up during the highlight): what the view says of itself.
        if (gestureUnannounced_ && actionUnannounced_) {
            snapshot_.announcement = snapshot_.accessibilityText;
        } else if (gestureUnannounced_) {
            snapshot_.announcement = snapshot_.gestureText;
        } else if (actionUnannounced_) {
            snapshot_.announcement = snapshot_.actionText;
        }
    }
    // A reason seen only after its moment has passed is never announced.
    if (reasonUnannounced_ && !snapshot_.reasonText.empty()) {
        if (!snapshot_.announcement.empty()) {
            snapshot_.announcement += ' ';
        }
        snapshot_.announcement += snapshot_.reasonText;
    }
    gestureUnannounced_ = false;
    actionUnannounced_ = false;
    reasonUnannounced_ = false;
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
