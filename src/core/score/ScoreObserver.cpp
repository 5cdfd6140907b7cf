#include "core/score/ScoreObserver.h"

#include <algorithm>

namespace tactora {

namespace {

// A tap's action runs this long after the tap at the latest; older taps never ran.
constexpr double longestWait = 1.0;

}  // namespace

void ScoreObserver::gestureRecognised(const GestureNote& note) {
    if (note.kind == GestureKind::click) {
        firings_.push_back({TouchIntent::click, note.fingers, note.time, note.time});
        return;
    }
    std::erase_if(pending_, [&](const PendingTap& tap) {
        return tap.recognisedAt < note.time - longestWait;
    });
    pending_.push_back({note.fingers, note.time});
}

void ScoreObserver::actionPerformed(const ActionNote& note) {
    if (note.origin != ActionOrigin::tap) {
        return;
    }
    const auto tap = std::find_if(pending_.begin(), pending_.end(), [&](const PendingTap& pending) {
        return pending.fingers == note.fingers;
    });
    if (tap == pending_.end()) {
        return;
    }
    firings_.push_back({TouchIntent::tap, tap->fingers, tap->recognisedAt, note.time});
    pending_.erase(tap);
}

}  // namespace tactora
