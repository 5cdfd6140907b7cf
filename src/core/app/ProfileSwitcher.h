#pragma once

#include "core/profiles/ProfileStore.h"
#include "core/profiles/Uuid.h"

namespace tactora {

// What the parts beside the controller may do with its profiles: read and edit the store, and
// make a profile active for the application in front through the same steps as a choice in the
// profile pop-up (pending actions dropped, held presses let go of, the window brought up to
// date). Main thread only.
class ProfileSwitcher {
  public:
    virtual ~ProfileSwitcher() = default;

    // The profile store, created on first use.
    virtual ProfileStore& profiles() = 0;
    // Makes `id` active without making it the user's choice.
    virtual void switchProfileAutomatically(const Uuid& id) = 0;
    // Brings the profile pop-up and the gesture rows into line with the store.
    virtual void refreshProfileUI() = 0;
    // Drops pending gesture actions, lets go of held presses and resets the recogniser, so
    // that nothing half seen completes after a dialog.
    virtual void dropPendingWork() = 0;
    // The profile of the application in front, or the user's choice when it has none.
    virtual Uuid frontmostProfile() = 0;
    // Switches to frontmostProfile() when that is not the active one already.
    virtual void followFrontmost() = 0;
};

}  // namespace tactora
