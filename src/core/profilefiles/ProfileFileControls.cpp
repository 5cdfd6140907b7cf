#include "core/profilefiles/ProfileFileControls.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/localization/Localizer.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/ProfileJson.h"

namespace tactora {

ProfileFileControls::ProfileFileControls(ProfileSwitcher& switcher, FrontmostFollower& follower,
                                         ProfileFiles& files, Dialogs& dialogs, SettingsView& view)
    : switcher_(switcher), follower_(follower), files_(files), dialogs_(dialogs), view_(view) {}

void ProfileFileControls::deleteProfile() {
    // As before the naming dialog: nothing half seen may complete after the alert.
    switcher_.dropPendingWork();
    ProfileStore& profiles = switcher_.profiles();
    if (profiles.profiles().size() < 2) {
        return;
    }
    const WorkProfile& doomed = profiles.current();
    const Uuid id = doomed.id;
    const ConfirmationTexts texts{
        .message = L("profile.delete.message", doomed.name),
        .informative = L("profile.delete.info"),
        .confirmButton = L("profile.delete.button"),
        .cancelButton = L("cancel"),
    };
    if (!dialogs_.runConfirmation(texts) || !profiles.remove(id)) {
        return;
    }
    // The store brought back the user's choice; the application in front may have its own.
    switcher_.switchProfileAutomatically(follower_.frontmostProfile());
}

void ProfileFileControls::exportProfiles() {
    switcher_.dropPendingWork();
    files_.chooseExportPath(
        L("export.file") + ".json", L("export.message"),
        [this, alive = std::weak_ptr<int>(alive_)](std::optional<std::string> path) {
            if (!alive.expired() && path) {
                exportTo(*path);
            }
        });
}

// Written when the panel closes: the profiles as they are then.
void ProfileFileControls::exportTo(const std::string& path) {
    const std::vector<WorkProfile>& all = switcher_.profiles().profiles();
    const std::optional<std::string> json = encodeProfiles(all);
    if (!json || !files_.write(path, *json)) {
        dialogs_.showMessage({L("export.failed"), L("export.write")});
        return;
    }
    view_.setStatusText(L("export.done", static_cast<std::int64_t>(all.size())));
}

void ProfileFileControls::importProfiles() {
    switcher_.dropPendingWork();
    files_.chooseImportPath(L("import.message"), [this, alive = std::weak_ptr<int>(alive_)](
                                                     std::optional<std::string> path) {
        if (!alive.expired() && path) {
            importFrom(*path);
        }
    });
}

void ProfileFileControls::importFrom(const std::string& path) {
    // One byte more than allowed tells a file at the limit from a larger one.
    const std::optional<std::string> bytes = files_.read(path, maxProfileFileBytes + 1);
    if (!bytes) {
        dialogs_.showMessage({L("import.failed"), L("import.unreadable")});
        return;
    }
    auto outcome = readProfileFile(*bytes);
    if (const auto* error = std::get_if<ProfileFileError>(&outcome)) {
        dialogs_.showMessage({L("import.failed"), describeProfileFileError(*error)});
        return;
    }
    const std::size_t added =
        switcher_.profiles().importProfiles(std::get<std::vector<WorkProfile>>(std::move(outcome)));
    // An imported profile may claim the application in front, if no other profile had it.
    follower_.followFrontmost();
    switcher_.refreshProfileUI();
    view_.setStatusText(L("import.done", static_cast<std::int64_t>(added)));
}

}  // namespace tactora
