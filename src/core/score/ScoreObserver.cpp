#include "core/score/ScoreObserver.h"

#include <algorithm>
#include <cstddef>

#include "core/profiles/GestureSlot.h"

namespace tactora {

namespace {

// A tap's action runs this long after the tap at the latest; older taps never ran.
constexpr double longestWait = 1.0;

bool isRegionTap(MoreGestureSlot slot) {
    return slot == MoreGestureSlot::tapLeft || slot == MoreGestureSlot::tapRight ||
           slot == MoreGestureSlot::tapTop;
}

}  // namespace

ScoreObserver::ScoreObserver(const WorkProfile* profile) {
    if (profile == nullptr) {
        return;
    }
    more_ = profile->moreGestures;
    const auto tap = static_cast<std::size_t>(slot::forTap(1));
    if (tap < profile->actions.size()) {
        tapAction_ = profile->actions[tap];
    }
    if (tap < profile->shortcuts.size()) {
        tapShortcut_ = profile->shortcuts[tap];
    }
}

std::optional<MoreGestureSlot> ScoreObserver::slotOf(const ActionNote& note,
                                                     bool regionTaps) const {
    for (std::size_t index = 0; index < moreslot::count; ++index) {
        const auto slot = static_cast<MoreGestureSlot>(index);
        if (more_.isMapped(slot) && isRegionTap(slot) == regionTaps &&
            more_.action(slot) == note.action && more_.shortcut(slot) == note.shortcut) {
            return slot;
        }
    }
    return std::nullopt;
}

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
    if (note.origin == ActionOrigin::moreGesture) {
        firings_.push_back(
            {TouchIntent::gesture, note.fingers, note.time, note.time, slotOf(note, false)});
        return;
    }
    if (note.origin != ActionOrigin::tap) {
        return;
    }
    const auto tap = std::find_if(pending_.begin(), pending_.end(), [&](const PendingTap& pending) {
        return pending.fingers == note.fingers;
    });
    if (tap == pending_.end()) {
        return;
    }
    // A one-finger tap that carried out something other than its own action carried out its
    // region's.
    std::optional<MoreGestureSlot> region;
    if (note.fingers == 1 && (note.action != tapAction_ || note.shortcut != tapShortcut_)) {
        region = slotOf(note, true);
    }
    firings_.push_back({TouchIntent::tap, tap->fingers, tap->recognisedAt, note.time, region});
    pending_.erase(tap);
}

}  // namespace tactora
