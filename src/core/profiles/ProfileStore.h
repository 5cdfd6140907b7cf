#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/profiles/Preferences.h"
#include "core/profiles/SavedShortcut.h"
#include "core/profiles/Uuid.h"
#include "core/profiles/WorkProfile.h"

namespace tactora {

// The work profiles and which one is active, kept in a preferences domain. Every mutation is
// saved at once, in full. Requests that break a precondition are ignored silently and save
// nothing. Main thread only.
class ProfileStore {
  public:
    static constexpr const char* profilesKey = "workProfiles.v1";
    static constexpr const char* rejectedProfilesKey = "workProfiles.v1.rejected";
    static constexpr const char* activeKey = "activeWorkProfile";
    static constexpr const char* legacyKeyPrefix = "gesture.";

    // Loads the stored list, or migrates the legacy per-slot keys into one profile named
    // `defaultName` when there is no acceptable list; then saves. A stored list that is
    // rejected is kept under rejectedProfilesKey first, so it can still be recovered by hand.
    ProfileStore(std::shared_ptr<Preferences> defaults, std::string defaultName);

    ~ProfileStore() = default;
    ProfileStore(const ProfileStore&) = delete;
    ProfileStore& operator=(const ProfileStore&) = delete;
    ProfileStore(ProfileStore&&) = delete;
    ProfileStore& operator=(ProfileStore&&) = delete;

    const std::vector<WorkProfile>& profiles() const { return profiles_; }
    const Uuid& activeID() const { return activeID_; }

    // The active profile. Always exists; its absence is a fatal error.
    const WorkProfile& current() const;

    void save();
    void select(const Uuid& id);
    void setAction(ActionIndex action, std::int64_t index);
    // Stores a valid shortcut in a slot of the active profile and makes the slot custom.
    void setShortcut(const SavedShortcut& shortcut, std::int64_t index);
    // Appends a profile (a copy of the active one's slots when `duplicate`) and activates it.
    void add(const std::string& name, bool duplicate);
    void rename(const std::string& name);

  private:
    // The active profile for editing, or null.
    WorkProfile* active();

    std::shared_ptr<Preferences> defaults_;
    std::vector<WorkProfile> profiles_;
    Uuid activeID_;
};

}  // namespace tactora
