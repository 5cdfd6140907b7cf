#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/profiles/MoreGestureSlot.h"
#include "core/profiles/Preferences.h"
#include "core/profiles/SlotExtra.h"
#include "core/profiles/SurfaceKind.h"
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
    // The profile in use now: the user's choice, or for a while the profile of the application
    // in front (activate()).
    const Uuid& activeID() const { return activeID_; }
    // The profile the user chose last (select(), add(), or the one kept across restarts). Only
    // this one is saved under activeKey.
    const Uuid& chosenID() const { return chosenID_; }

    // The active profile. Always exists; its absence is a fatal error.
    const WorkProfile& current() const;

    void save();
    void select(const Uuid& id);
    // Gives a slot of the active profile one of the catalogue's fifteen, taking away any extra.
    void setAction(ActionIndex action, std::int64_t index);
    // Gives a slot of the active profile an extra action (and the default in its `actions`).
    // Ignored when the action needs a value and has none.
    void setExtra(const SlotExtra& extra, std::int64_t index);
    // Stores a valid shortcut in a slot of the active profile and makes the slot custom.
    void setShortcut(const SavedShortcut& shortcut, std::int64_t index);
    // The same three for the eight of either surface: the ones above edit the Magic Mouse's, and
    // an edit of one surface's slots leaves the other's alone.
    void setAction(ActionIndex action, std::int64_t index, SurfaceKind surface);
    void setExtra(const SlotExtra& extra, std::int64_t index, SurfaceKind surface);
    void setShortcut(const SavedShortcut& shortcut, std::int64_t index, SurfaceKind surface);
    // The same for a slot of the further gestures of the active profile.
    void setMoreAction(ActionIndex action, MoreGestureSlot slot);
    void setMoreExtra(const SlotExtra& extra, MoreGestureSlot slot);
    void setMoreShortcut(const SavedShortcut& shortcut, MoreGestureSlot slot);
    // The depth of the active profile's top band, brought into its range.
    void setTopBand(double depth);
    // Appends a profile (a copy of the active one's slots, for both surfaces, when `duplicate`)
    // and activates it.
    void add(const std::string& name, bool duplicate);
    void rename(const std::string& name);

    // Makes a profile active without making it the user's choice, and saves nothing: the
    // choice, not this, is what a restart comes back to. False, and no change, for an unknown id.
    bool activate(const Uuid& id);

    // The profile that `bundleID` is assigned to, if any.
    std::optional<Uuid> profileFor(const std::string& bundleID) const;
    // Assigns an application to a profile, taking it away from any other profile. False, and
    // nothing written, for an empty bundle id, an unknown profile, or when it is assigned there
    // already.
    bool assign(const std::string& bundleID, const Uuid& profile);
    // Takes an application away from its profile. False when it has none.
    bool unassign(const std::string& bundleID);

    // Deletes a profile and the assignments of its applications. False, and nothing written,
    // when it is the last profile or the id is unknown. Deleting the user's choice makes the
    // first remaining profile the choice; deleting the active profile brings back the choice.
    bool remove(const Uuid& id);

    // Appends every profile of `imported`, sanitized, in order, replacing nothing: an id that
    // is already taken gets a fresh one, and an application assigned in this store already (or
    // earlier in `imported`) stays where it is. The active profile and the choice are kept.
    // Returns how many were appended; 0, and nothing written, for an empty list or one with
    // duplicate ids.
    std::size_t importProfiles(std::vector<WorkProfile> imported);

  private:
    // The active profile for editing, or null.
    WorkProfile* active();

    std::shared_ptr<Preferences> defaults_;
    std::vector<WorkProfile> profiles_;
    Uuid activeID_;
    Uuid chosenID_;
};

}  // namespace tactora
