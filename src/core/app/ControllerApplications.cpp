#include <algorithm>
#include <utility>

#include "core/app/Controller.h"
#include "core/localization/Localizer.h"

namespace tactora {

void Controller::frontmostApplicationChanged(std::optional<std::int32_t> processID,
                                             std::string bundleID) {
    // The user comes here to edit profiles: the one of the application left behind stays.
    if (processID && *processID == services_.workspace.ownProcessID()) {
        return;
    }
    frontmostBundleID_ = processID ? std::move(bundleID) : std::string();
    // Looked up once here rather than on every redraw of the status item.
    frontmostName_ =
        frontmostBundleID_.empty() ? std::string() : applicationName(frontmostBundleID_);
    followFrontmost();
}

Uuid Controller::frontmostProfile() {
    const std::optional<Uuid> assigned =
        frontmostBundleID_.empty() ? std::nullopt : profiles().profileFor(frontmostBundleID_);
    return assigned.value_or(profiles().chosenID());
}

void Controller::followFrontmost() {
    // A press held now was rewritten by the profile in front: it keeps that profile until its
    // up has been sent, at the physical release (see resumeFollowing()).
    followPending_ = !presses_.empty();
    if (followPending_) {
        return;
    }
    const Uuid target = frontmostProfile();
    if (target != profiles().activeID()) {
        switchProfile(target, ProfileSwitch::automatic);
    }
}

// After the last held press ended: the switch that waited for it happens, once the event tap's
// callback that ended it has returned.
void Controller::resumeFollowing() {
    if (!followPending_ || !presses_.empty()) {
        return;
    }
    services_.queue.async([weak = weak_from_this()] {
        const auto self = weak.lock();
        if (self && self->followPending_) {
            self->followFrontmost();
        }
    });
}

bool Controller::profileFollowsApplication() {
    return profiles().activeID() != profiles().chosenID();
}

std::string Controller::activeProfileTitle() {
    const std::string& name = profiles().current().name;
    if (!profileFollowsApplication()) {
        return name;
    }
    return L("profile.automatic", name, frontmostName_);
}

std::string Controller::applicationName(const std::string& bundleID) const {
    return services_.workspace.applicationName(bundleID).value_or(bundleID);
}

void Controller::editApplications() {
    editedProfile_ = profiles().activeID();
    services_.view.showApplications(applicationsSheet());
}

void Controller::addApplication(const std::string& bundleID) {
    if (!editedProfile_ || !profiles().assign(bundleID, *editedProfile_)) {
        return;
    }
    followFrontmost();
    services_.view.showApplications(applicationsSheet());
}

void Controller::removeApplication(const std::string& bundleID) {
    if (!editedProfile_ || profiles().profileFor(bundleID) != editedProfile_) {
        return;
    }
    profiles().unassign(bundleID);
    followFrontmost();
    services_.view.showApplications(applicationsSheet());
}

void Controller::closeApplications() {
    editedProfile_.reset();
}

ApplicationsSheet Controller::applicationsSheet() {
    const auto& all = profiles().profiles();
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
    const std::int32_t own = services_.workspace.ownProcessID();
    for (const RunningApplication& app : services_.workspace.regularApplications()) {
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

void Controller::observeFrontmostApplication() {
    services_.workspace.observeFrontmostApplication(
        [weak = weak_from_this()](std::optional<std::int32_t> processID, std::string bundleID) {
            if (const auto self = weak.lock()) {
                self->frontmostApplicationChanged(processID, std::move(bundleID));
            }
        });
}

}  // namespace tactora
