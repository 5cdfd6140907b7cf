#pragma once

#include "core/app/ControllerEvents.h"
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
    // Whether a physical press is held now as the press of the profile it began under.
    virtual bool pressesHeld() = 0;
    // Tells the controller's observers that another application came to the front.
    virtual void tellFrontApplication(const FrontApplicationNote& note) = 0;
};

}  // namespace tactora
