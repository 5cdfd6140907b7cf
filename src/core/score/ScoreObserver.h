#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/app/ControllerObserver.h"
#include "core/profiles/MoreGestureSlot.h"
#include "core/profiles/WorkProfile.h"
#include "core/score/ScoreCard.h"

namespace tactora {

// Collects, during a replay, the gestures that took effect: a tap when its action runs, a
// click when it is recognised with its fingers (what the click then does is the profile's
// business), a gesture beyond those when its action runs. The controller tells a gesture beyond
// the taps and clicks only by the action it carried out, so that gesture is known by its slot's
// action and shortcut in the replayed profile: a profile that maps every such slot to an action
// or shortcut of its own (see withEveryMoreGesture()) is told apart completely. Main thread
// only, as every observer.
class ScoreObserver final : public ControllerObserver {
  public:
    // `profile`: the replayed profile, whose gestures beyond the taps and clicks are looked for;
    // without it, none are.
    explicit ScoreObserver(const WorkProfile* profile = nullptr);

    const std::vector<Firing>& firings() const { return firings_; }

    void gestureRecognised(const GestureNote& note) override;
    void actionPerformed(const ActionNote& note) override;

  private:
    struct PendingTap {
        std::int64_t fingers = 0;
        double recognisedAt = 0;
    };

    // The mapped slot whose action and shortcut `note` carried out, if one is.
    std::optional<MoreGestureSlot> slotOf(const ActionNote& note, bool regionTaps) const;

    MoreGestureMap more_;
    ActionIndex tapAction_ = action::defaultAction;  // the one-finger tap's own
    std::optional<SavedShortcut> tapShortcut_;
    std::vector<Firing> firings_;
    std::vector<PendingTap> pending_;
};

}  // namespace tactora
