#include "core/profiles/ProfileStore.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

#include "core/actions/ExtraActionInfo.h"
#include "core/profiles/DefaultsInteger.h"
#include "core/profiles/GestureSlot.h"
#include "core/profiles/ProfileJson.h"
#include "core/support/Fatal.h"

namespace tactora {

namespace {

// The eight lists of one surface of a profile, edited in place.
struct SurfaceSlots {
    std::vector<ActionIndex>& actions;
    std::vector<std::optional<SavedShortcut>>& shortcuts;
    std::vector<std::optional<SlotExtra>>& extras;
};

SurfaceSlots slotsFor(WorkProfile& profile, SurfaceKind surface) {
    if (surface == SurfaceKind::trackpad) {
        GestureSlots& trackpad = profile.trackpad;
        return {trackpad.actions, trackpad.shortcuts, trackpad.extras};
    }
    return {profile.actions, profile.shortcuts, profile.extras};
}

std::string textOf(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

Bytes bytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

bool hasDistinctIDs(const std::vector<WorkProfile>& profiles) {
    std::set<Uuid> ids;
    for (const WorkProfile& profile : profiles) {
        ids.insert(profile.id);
    }
    return ids.size() == profiles.size();
}

// What the profiles key holds. Only a data value is ever loaded; a text there was not written
// by the store, so it is never trusted, but its bytes are kept so that it can be set aside
// rather than silently overwritten.
struct StoredList {
    Bytes bytes;
    bool isData = false;
};

std::optional<StoredList> storedList(const Preferences& defaults) {
    if (std::optional<Bytes> data = defaults.data(ProfileStore::profilesKey)) {
        return StoredList{std::move(*data), true};
    }
    if (const std::optional<std::string> text = defaults.string(ProfileStore::profilesKey)) {
        return StoredList{bytesOf(*text), false};
    }
    return std::nullopt;
}

std::optional<std::vector<WorkProfile>> acceptedList(const Bytes& stored) {
    std::optional<std::vector<WorkProfile>> profiles = decodeProfiles(textOf(stored));
    if (!profiles || profiles->empty() || !hasDistinctIDs(*profiles)) {
        return std::nullopt;
    }
    for (WorkProfile& profile : *profiles) {
        profile.sanitize();
    }
    return profiles;
}

bool hasID(const std::vector<WorkProfile>& profiles, const Uuid& id) {
    return std::any_of(profiles.begin(), profiles.end(),
                       [&id](const WorkProfile& p) { return p.id == id; });
}

// Keeps each application in the first profile that lists it, once; `taken` holds those
// assigned already and gains the ones kept here.
void keepUnassigned(WorkProfile& profile, std::set<std::string>& taken) {
    std::erase_if(profile.apps,
                  [&taken](const std::string& app) { return !taken.insert(app).second; });
}

WorkProfile migratedProfile(const Preferences& defaults, std::string name) {
    std::vector<ActionIndex> actions;
    actions.reserve(slot::count);
    for (std::size_t i = 0; i < slot::count; ++i) {
        const auto key = ProfileStore::legacyKeyPrefix + std::to_string(i);
        actions.push_back(defaultsInteger(defaults, key));
    }
    WorkProfile profile(std::move(name), std::move(actions));
    profile.sanitize();
    return profile;
}

}  // namespace

ProfileStore::ProfileStore(std::shared_ptr<Preferences> defaults, std::string defaultName)
    : defaults_(std::move(defaults)) {
    const std::optional<StoredList> stored = storedList(*defaults_);
    std::optional<std::vector<WorkProfile>> accepted;
    if (stored) {
        if (stored->isData) {
            accepted = acceptedList(stored->bytes);
        }
        if (!accepted) {
            defaults_->setData(rejectedProfilesKey, stored->bytes);
        }
    }
    profiles_ = accepted
                    ? std::move(*accepted)
                    : std::vector<WorkProfile>{migratedProfile(*defaults_, std::move(defaultName))};
    std::set<std::string> assigned;
    for (WorkProfile& profile : profiles_) {
        keepUnassigned(profile, assigned);
    }

    activeID_ = profiles_.front().id;
    if (const auto text = defaults_->string(activeKey)) {
        const std::optional<Uuid> remembered = Uuid::parse(*text);
        if (remembered && std::any_of(profiles_.begin(), profiles_.end(),
                                      [&](const WorkProfile& p) { return p.id == *remembered; })) {
            activeID_ = *remembered;
        }
    }
    chosenID_ = activeID_;
    save();
}

const WorkProfile& ProfileStore::current() const {
    const auto found = std::find_if(profiles_.begin(), profiles_.end(),
                                    [this](const WorkProfile& p) { return p.id == activeID_; });
    if (found == profiles_.end()) {
        fatalError("Unexpectedly found nil while unwrapping an Optional value");
    }
    return *found;
}

WorkProfile* ProfileStore::active() {
    const auto found = std::find_if(profiles_.begin(), profiles_.end(),
                                    [this](const WorkProfile& p) { return p.id == activeID_; });
    return found == profiles_.end() ? nullptr : &*found;
}

void ProfileStore::save() {
    if (const std::optional<std::string> json = encodeProfiles(profiles_)) {
        defaults_->setData(profilesKey, bytesOf(*json));
    }
    defaults_->setString(activeKey, chosenID_.text());
}

void ProfileStore::select(const Uuid& id) {
    const bool known = std::any_of(profiles_.begin(), profiles_.end(),
                                   [&id](const WorkProfile& p) { return p.id == id; });
    if (!known) {
        return;
    }
    activeID_ = id;
    chosenID_ = id;
    save();
}

void ProfileStore::setAction(ActionIndex action, std::int64_t index) {
    setAction(action, index, SurfaceKind::mouse);
}

void ProfileStore::setExtra(const SlotExtra& extra, std::int64_t index) {
    setExtra(extra, index, SurfaceKind::mouse);
}

void ProfileStore::setShortcut(const SavedShortcut& shortcut, std::int64_t index) {
    setShortcut(shortcut, index, SurfaceKind::mouse);
}

void ProfileStore::setAction(ActionIndex action, std::int64_t index, SurfaceKind surface) {
    if (!slot::isValid(index) || !action::isValid(action)) {
        return;
    }
    WorkProfile* profile = active();
    if (profile == nullptr) {
        return;
    }
    const SurfaceSlots slots = slotsFor(*profile, surface);
    const auto position = static_cast<std::size_t>(index);
    slots.actions[position] = action;
    if (position < slots.extras.size()) {
        slots.extras[position].reset();
        profile->sanitize();
    }
    save();
}

void ProfileStore::setExtra(const SlotExtra& extra, std::int64_t index, SurfaceKind surface) {
    const bool needsValue = catalogue::info(extra.action).value != ActionValueKind::none;
    if (!slot::isValid(index) || (needsValue && extra.value.empty())) {
        return;
    }
    WorkProfile* profile = active();
    if (profile == nullptr) {
        return;
    }
    const SurfaceSlots slots = slotsFor(*profile, surface);
    const auto position = static_cast<std::size_t>(index);
    slots.actions[position] = action::defaultAction;
    slots.extras.resize(slot::count);
    slots.extras[position] = extra;
    profile->sanitize();
    save();
}

void ProfileStore::setShortcut(const SavedShortcut& shortcut, std::int64_t index,
                               SurfaceKind surface) {
    if (!slot::isValid(index) || !shortcut.isValid()) {
        return;
    }
    WorkProfile* profile = active();
    if (profile == nullptr) {
        return;
    }
    const SurfaceSlots slots = slotsFor(*profile, surface);
    const auto position = static_cast<std::size_t>(index);
    slots.shortcuts[position] = shortcut;
    slots.actions[position] = action::custom;
    profile->sanitize();  // the slot's extra, if any, gives way
    save();
}

void ProfileStore::setMoreAction(ActionIndex action, MoreGestureSlot slot) {
    WorkProfile* profile = active();
    if (profile == nullptr || !action::isValid(action) ||
        moreslot::index(slot) >= moreslot::count) {
        return;
    }
    profile->moreGestures.actions[moreslot::index(slot)] = action;
    profile->moreGestures.extras[moreslot::index(slot)].reset();
    save();
}

void ProfileStore::setMoreExtra(const SlotExtra& extra, MoreGestureSlot slot) {
    const bool needsValue = catalogue::info(extra.action).value != ActionValueKind::none;
    WorkProfile* profile = active();
    if (profile == nullptr || (needsValue && extra.value.empty()) ||
        moreslot::index(slot) >= moreslot::count) {
        return;
    }
    profile->moreGestures.actions[moreslot::index(slot)] = action::defaultAction;
    profile->moreGestures.extras[moreslot::index(slot)] = extra;
    profile->moreGestures.sanitize();
    save();
}

void ProfileStore::setMoreShortcut(const SavedShortcut& shortcut, MoreGestureSlot slot) {
    WorkProfile* profile = active();
    if (profile == nullptr || !shortcut.isValid() || moreslot::index(slot) >= moreslot::count) {
        return;
    }
    profile->moreGestures.shortcuts[moreslot::index(slot)] = shortcut;
    profile->moreGestures.actions[moreslot::index(slot)] = action::custom;
    profile->moreGestures.extras[moreslot::index(slot)].reset();
    save();
}

void ProfileStore::setTopBand(double depth) {
    WorkProfile* profile = active();
    if (profile == nullptr) {
        return;
    }
    profile->moreGestures.topBand = depth;
    profile->moreGestures.sanitize();
    save();
}

void ProfileStore::add(const std::string& name, bool duplicate) {
    WorkProfile profile(name);
    if (duplicate) {
        const WorkProfile& source = current();
        profile.actions = source.actions;
        profile.shortcuts = source.shortcuts;
        profile.extras = source.extras;
        profile.moreGestures = source.moreGestures;
        profile.trackpad = source.trackpad;
    }
    activeID_ = profile.id;
    chosenID_ = profile.id;
    profiles_.push_back(std::move(profile));
    save();
}

void ProfileStore::rename(const std::string& name) {
    WorkProfile* profile = active();
    if (profile == nullptr) {
        return;
    }
    profile->name = name;
    save();
}

bool ProfileStore::activate(const Uuid& id) {
    if (!hasID(profiles_, id)) {
        return false;
    }
    activeID_ = id;
    return true;
}

std::optional<Uuid> ProfileStore::profileFor(const std::string& bundleID) const {
    for (const WorkProfile& profile : profiles_) {
        if (std::ranges::find(profile.apps, bundleID) != profile.apps.end()) {
            return profile.id;
        }
    }
    return std::nullopt;
}

bool ProfileStore::assign(const std::string& bundleID, const Uuid& profile) {
    if (bundleID.empty() || !hasID(profiles_, profile) || profileFor(bundleID) == profile) {
        return false;
    }
    for (WorkProfile& each : profiles_) {
        std::erase(each.apps, bundleID);
        if (each.id == profile) {
            each.apps.push_back(bundleID);
        }
    }
    save();
    return true;
}

bool ProfileStore::unassign(const std::string& bundleID) {
    if (!profileFor(bundleID)) {
        return false;
    }
    for (WorkProfile& profile : profiles_) {
        std::erase(profile.apps, bundleID);
    }
    save();
    return true;
}

bool ProfileStore::remove(const Uuid& id) {
    if (profiles_.size() < 2 || !hasID(profiles_, id)) {
        return false;
    }
    std::erase_if(profiles_, [&id](const WorkProfile& p) { return p.id == id; });
    if (chosenID_ == id) {
        chosenID_ = profiles_.front().id;
    }
    if (activeID_ == id) {
        activeID_ = chosenID_;
    }
    save();
    return true;
}

std::size_t ProfileStore::importProfiles(std::vector<WorkProfile> imported) {
    if (imported.empty() || !hasDistinctIDs(imported)) {
        return 0;
    }
    std::set<std::string> assigned;
    for (const WorkProfile& profile : profiles_) {
        assigned.insert(profile.apps.begin(), profile.apps.end());
    }
    for (WorkProfile& profile : imported) {
        profile.sanitize();
        keepUnassigned(profile, assigned);
        while (hasID(profiles_, profile.id)) {
            profile.id = Uuid::random();
        }
        profiles_.push_back(std::move(profile));
    }
    save();
    return imported.size();
}

}  // namespace tactora
