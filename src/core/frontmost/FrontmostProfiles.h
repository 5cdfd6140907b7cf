#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "core/app/ControllerObserver.h"
#include "core/app/FrontmostFollower.h"
#include "core/app/ProfileSwitcher.h"
#include "core/app/ProfileTitleSource.h"
#include "core/platform/ApplicationsSheet.h"
#include "core/platform/Clock.h"
#include "core/platform/MainQueue.h"
#include "core/platform/SettingsView.h"
#include "core/platform/Workspace.h"
#include "core/profiles/Uuid.h"

namespace tactora {

// Profiles that follow the application in front: each profile may list applications, and while
// one of them is in front its profile is active instead of the user's choice. Edits the lists in
// the applications sheet, and names the active profile after the application that chose it.
// Watches the application in front once launching finishes; reaches the profiles through the
// controller's profile switcher.
//
// Main thread only. Held by std::shared_ptr: the workspace's handler holds it weakly.
class FrontmostProfiles final : public ControllerObserver,
                                public FrontmostFollower,
                                public ProfileTitleSource,
                                public std::enable_shared_from_this<FrontmostProfiles> {
    struct Passkey {
        explicit Passkey() = default;
    };

  public:
    static std::shared_ptr<FrontmostProfiles> create(ProfileSwitcher& switcher,
                                                     Workspace& workspace, SettingsView& view,
                                                     Clock& clock, MainQueue& queue);
    FrontmostProfiles(Passkey /*unused*/, ProfileSwitcher& switcher, Workspace& workspace,
                      SettingsView& view, Clock& clock, MainQueue& queue);

    // Starts watching the application in front and follows the one in front now.
    void launched(double time) override;
    // A switch that waited for a held press happens once the last one has ended; any profile
    // selected meanwhile replaces it.
    void mouseEventDecided(const MouseEventNote& note) override;
    void pressesReleased(const PressesReleasedNote& note) override;
    void profileSelected(const ProfileNote& note) override;

    // Another application came to the front (`processID` none when no application is in front;
    // `bundleID` empty when it has none). Its profile becomes active, or the user's choice when
    // it has none, through the same steps as a choice in the pop-up. This application coming to
    // the front changes nothing.
    void frontmostApplicationChanged(std::optional<std::int32_t> processID, std::string bundleID);
    // The bundle id of the last application other than this one that came to the front.
    const std::string& frontmostBundleID() const { return frontmostBundleID_; }
    // Whether the active profile is not the user's choice but that of the application in front.
    bool profileFollowsApplication();
    // What the pop-up and the status item call the active profile: its name, and the
    // application's when the application in front chose it.
    std::string activeProfileTitle() override;

    Uuid frontmostProfile() override;
    // Switches to frontmostProfile() when that is not the active one already; while a press is
    // held, only once it has ended, so that the press stays one press with one matching up.
    void followFrontmost() override;

    // The profile actions' applications item: shows the sheet of the active profile's
    // applications, which the next three operations edit until it closes.
    void editApplications();
    // Assigns the application to the sheet's profile (moving it from any other).
    void addApplication(const std::string& bundleID);
    // Takes the application away from the sheet's profile.
    void removeApplication(const std::string& bundleID);
    void closeApplications();

  private:
    void setFollowPending(bool pending);
    ApplicationsSheet applicationsSheet();
    std::string applicationName(const std::string& bundleID) const;
    void resumeWhenPressesEnd();

    ProfileSwitcher& switcher_;
    Workspace& workspace_;
    SettingsView& view_;
    Clock& clock_;
    MainQueue& queue_;
    std::string frontmostBundleID_;
    std::string frontmostName_;          // what the user calls that application
    std::optional<Uuid> editedProfile_;  // the applications sheet's profile while it is open
    bool followPending_ = false;         // a switch waits for a held press to end
};

}  // namespace tactora
