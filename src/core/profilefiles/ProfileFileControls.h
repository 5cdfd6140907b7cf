#pragma once

#include <memory>
#include <string>

#include "core/app/FrontmostFollower.h"
#include "core/app/ProfileSwitcher.h"
#include "core/platform/ConfirmationTexts.h"
#include "core/platform/Dialogs.h"
#include "core/platform/ProfileFiles.h"
#include "core/platform/SettingsView.h"

namespace tactora {

// The profile actions' file items: deleting the profile shown in the pop-up (after asking),
// exporting every profile to a file and importing the profiles of one. A file that is not such
// a list changes nothing and is explained in a message. Each drops pending gesture work first,
// so that nothing half seen completes after a dialog.
//
// Main thread only; reaches the profiles through the controller's profile switcher.
class ProfileFileControls {
  public:
    ProfileFileControls(ProfileSwitcher& switcher, FrontmostFollower& follower, ProfileFiles& files,
                        Dialogs& dialogs, SettingsView& view);

    // Asks, then deletes the active profile; the last profile is never deleted.
    void deleteProfile();
    // Writes every profile to a file chosen with a save panel, once the panel closes.
    void exportProfiles();
    // Appends the profiles of a file chosen with an open panel, once the panel closes.
    void importProfiles();

  private:
    void exportTo(const std::string& path);
    void importFrom(const std::string& path);

    // A panel that closes after this object is gone finds it expired and does nothing.
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
    ProfileSwitcher& switcher_;
    FrontmostFollower& follower_;
    ProfileFiles& files_;
    Dialogs& dialogs_;
    SettingsView& view_;
};

}  // namespace tactora
