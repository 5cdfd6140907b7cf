#include <optional>
#include <string>
#include <variant>

#include "core/app/Controller.h"
#include "core/localization/Localizer.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/ProfileJson.h"

namespace tactora {

namespace {

const char* problemKey(ProfileFileError error) {
    switch (error) {
        case ProfileFileError::tooLarge:
            return "import.large";
        case ProfileFileError::notJson:
            return "import.json";
        case ProfileFileError::wrongShape:
            break;
        case ProfileFileError::empty:
            return "import.empty";
        case ProfileFileError::duplicateIDs:
            return "import.duplicates";
    }
    return "import.shape";
}

}  // namespace

void Controller::exportProfiles() {
    dropPendingWork();
    services_.files.chooseExportPath(L("export.file") + ".json", L("export.message"),
                                     [weak = weak_from_this()](std::optional<std::string> path) {
                                         const auto self = weak.lock();
                                         if (self && path) {
                                             self->exportTo(*path);
                                         }
                                     });
}

// Written when the panel closes: the profiles as they are then.
void Controller::exportTo(const std::string& path) {
    const std::optional<std::string> json = encodeProfiles(profiles().profiles());
    if (!json || !services_.files.write(path, *json)) {
        services_.dialogs.showMessage({L("export.failed"), L("export.write")});
        return;
    }
    services_.view.setStatusText(
        L("export.done", static_cast<std::int64_t>(profiles().profiles().size())));
}

void Controller::importProfiles() {
    dropPendingWork();
    services_.files.chooseImportPath(L("import.message"),
                                     [weak = weak_from_this()](std::optional<std::string> path) {
                                         const auto self = weak.lock();
                                         if (self && path) {
                                             self->importFrom(*path);
                                         }
                                     });
}

void Controller::importFrom(const std::string& path) {
    // One byte more than allowed tells a file at the limit from a larger one.
    const std::optional<std::string> bytes = services_.files.read(path, maxProfileFileBytes + 1);
    if (!bytes) {
        services_.dialogs.showMessage({L("import.failed"), L("import.unreadable")});
        return;
    }
    auto outcome = readProfileFile(*bytes);
    if (const auto* error = std::get_if<ProfileFileError>(&outcome)) {
        services_.dialogs.showMessage({L("import.failed"), L(problemKey(*error))});
        return;
    }
    const std::size_t added =
        profiles().importProfiles(std::get<std::vector<WorkProfile>>(std::move(outcome)));
    // An imported profile may claim the application in front, if no other profile had it.
    followFrontmost();
    refreshProfileUI();
    services_.view.setStatusText(L("import.done", static_cast<std::int64_t>(added)));
}

}  // namespace tactora
