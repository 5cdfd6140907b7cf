#include "core/frontmost/FrontmostProfiles.h"

#include <algorithm>
#include <utility>

#include "core/localization/Localizer.h"

namespace tactora {

std::shared_ptr<FrontmostProfiles> FrontmostProfiles::create(ProfileSwitcher& switcher,
                                                             Workspace& workspace,
                                                             SettingsView& view, Clock& clock,
                                                             MainQueue& queue) {
    return std::make_shared<FrontmostProfiles>(Passkey{}, switcher, workspace, view, clock, queue);
}

FrontmostProfiles::FrontmostProfiles(Passkey /*unused*/, ProfileSwitcher& switcher,
                                     Workspace& workspace, SettingsView& view, Clock& clock,
                                     MainQueue& queue)
    : switcher_(switcher), workspace_(workspace), view_(view), clock_(clock), queue_(queue) {}

void FrontmostProfiles::launched(double /*time*/) {
    workspace_.observeFrontmostApplication(
        [weak = weak_from_this()](std::optional<std::int32_t> processID, std::string bundleID) {
            if (const auto self = weak.lock()) {
                self->frontmostApplicationChanged(processID, std::move(bundleID));
            }
        });
    frontmostApplicationChanged(workspace_.frontmostProcessID(), workspace_.frontmostBundleID());
}

void FrontmostProfiles::frontmostApplicationChanged(std::optional<std::int32_t> processID,
                                                    std::string bundleID) {
    if (processID && *processID == workspace_.ownProcessID()) {
        // Told, for what records the application in front; but the user comes here to edit
        // profiles, so the one of the application left behind stays.
        switcher_.tellFrontApplication({.processID = processID,
                                        .bundleID = std::move(bundleID),
                                        .name = {},
                                        .time = clock_.uptime()});
        return;
    }
    frontmostBundleID_ = processID ? std::move(bundleID) : std::string();
    // Looked up once here rather than on every redraw of the status item.
    frontmostName_ =
        frontmostBundleID_.empty() ? std::string() : applicationName(frontmostBundleID_);
    switcher_.tellFrontApplication({.processID = processID,
                                    .bundleID = frontmostBundleID_,
                                    .name = frontmostName_,
                                    .time = clock_.uptime()});
    followFrontmost();
}

Uuid FrontmostProfiles::frontmostProfile() {
    ProfileStore& profiles = switcher_.profiles();
    const std::optional<Uuid> assigned =
        frontmostBundleID_.empty() ? std::nullopt : profiles.profileFor(frontmostBundleID_);
    return assigned.value_or(profiles.chosenID());
}

void FrontmostProfiles::followFrontmost() {
    // A press held now was rewritten under the active profile: it keeps that profile until its
    // up has been sent, at the physical release.
    setFollowPending(switcher_.pressesHeld());
    if (followPending_) {
        return;
    }
    const Uuid target = frontmostProfile();
    if (target != switcher_.profiles().activeID()) {
        switcher_.switchProfileAutomatically(target);
    }
}

void FrontmostProfiles::mouseEventDecided(const MouseEventNote& /*note*/) {
    resumeWhenPressesEnd();
}

void FrontmostProfiles::pressesReleased(const PressesReleasedNote& /*note*/) {
    resumeWhenPressesEnd();
}

void FrontmostProfiles::profileSelected(const ProfileNote& /*note*/) {
    setFollowPending(false);
}

// While a switch waits, the tap's notes tell when the held press has ended.
void FrontmostProfiles::setFollowPending(bool pending) {
    followPending_ = pending;
    setWantsMouseEvents(pending);
}

// From the main queue, so that a profile chosen in the same breath as the presses were let go
// of (a choice in the pop-up lets go of them first) replaces the waiting switch.
void FrontmostProfiles::resumeWhenPressesEnd() {
    if (!followPending_ || switcher_.pressesHeld()) {
        return;
    }
    queue_.async([weak = weak_from_this()] {
        const auto self = weak.lock();
        if (self && self->followPending_) {
            self->followFrontmost();
        }
    });
}

bool FrontmostProfiles::profileFollowsApplication() {
    return switcher_.profiles().activeID() != switcher_.profiles().chosenID();
}

std::string FrontmostProfiles::activeProfileTitle() {
    const std::string& name = switcher_.profiles().current().name;
    if (!profileFollowsApplication()) {
        return name;
    }
    return L("profile.automatic", name, frontmostName_);
}

std::string FrontmostProfiles::applicationName(const std::string& bundleID) const {
    return workspace_.applicationName(bundleID).value_or(bundleID);
}

void FrontmostProfiles::editApplications() {
    editedProfile_ = switcher_.profiles().activeID();
    view_.showApplications(applicationsSheet());
}

void FrontmostProfiles::addApplication(const std::string& bundleID) {
    if (!editedProfile_ || !switcher_.profiles().assign(bundleID, *editedProfile_)) {
        return;
    }
    followFrontmost();
    view_.showApplications(applicationsSheet());
}

void FrontmostProfiles::removeApplication(const std::string& bundleID) {
    if (!editedProfile_ || switcher_.profiles().profileFor(bundleID) != editedProfile_) {
        return;
    }
    switcher_.profiles().unassign(bundleID);
    followFrontmost();
    view_.showApplications(applicationsSheet());
}

void FrontmostProfiles::closeApplications() {
    editedProfile_.reset();
}

ApplicationsSheet FrontmostProfiles::applicationsSheet() {
    const auto& all = switcher_.profiles().profiles();
    const auto edited = std::ranges::find(all, *editedProfile_, &WorkProfile::id);
    ApplicationsSheet sheet{
        .title = L("apps.title", edited->name),
        .explanation = L("apps.info"),
        .nameColumn = L("apps.column.name"),
        .bundleColumn = L("apps.column.id"),
        .addButton = L("apps.add"),
        .removeButton = L("apps.remove"),
        .chooseItem = L("apps.choose"),
        .chooseMessage = L("apps.choose.message"),
        .doneButton = L("apps.done"),
        .applications = {},
        .running = {},
    };
    for (const std::string& bundleID : edited->apps) {
        sheet.applications.push_back({bundleID, applicationName(bundleID)});
    }
    const std::int32_t own = workspace_.ownProcessID();
    for (const RunningApplication& app : workspace_.regularApplications()) {
        const bool listed = std::ranges::find(edited->apps, app.bundleID) != edited->apps.end() ||
                            std::ranges::find(sheet.running, app.bundleID,
                                              &ApplicationRow::bundleID) != sheet.running.end();
        if (app.processID != own && !app.bundleID.empty() && !listed) {
            sheet.running.push_back({app.bundleID, app.name});
        }
    }
    std::ranges::sort(sheet.running, {}, &ApplicationRow::name);
    return sheet;
}

}  // namespace tactora
