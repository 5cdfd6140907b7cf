#include "core/profiles/ProfileFile.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <utility>

#include "core/localization/Localizer.h"
#include "core/profiles/ProfileJson.h"

namespace tactora {

namespace {

// JSON's own white space: what may stand around a value, and all an empty file may hold.
bool isBlank(std::string_view bytes) {
    return bytes.find_first_not_of(" \t\n\r") == std::string_view::npos;
}

bool isJson(std::string_view bytes) {
    // The parser would stop at a NUL byte and take what came before for the whole text.
    return bytes.find('\0') == std::string_view::npos &&
           nlohmann::json::accept(bytes.begin(), bytes.end());
}

bool hasDistinctIDs(const std::vector<WorkProfile>& profiles) {
    std::set<Uuid> ids;
    for (const WorkProfile& profile : profiles) {
        ids.insert(profile.id);
    }
    return ids.size() == profiles.size();
}

}  // namespace

std::variant<std::vector<WorkProfile>, ProfileFileError> readProfileFile(std::string_view bytes) {
    if (bytes.size() > maxProfileFileBytes) {
        return ProfileFileError::tooLarge;
    }
    if (isBlank(bytes)) {
        return ProfileFileError::blank;
    }
    if (!isJson(bytes)) {
        return ProfileFileError::notJson;
    }
    std::optional<std::vector<WorkProfile>> profiles = decodeProfiles(bytes);
    if (!profiles) {
        return ProfileFileError::wrongShape;
    }
    if (profiles->empty()) {
        return ProfileFileError::empty;
    }
    if (!hasDistinctIDs(*profiles)) {
        return ProfileFileError::duplicateIDs;
    }
    return std::move(*profiles);
}

const char* profileFileErrorKey(ProfileFileError error) {
    switch (error) {
        case ProfileFileError::tooLarge:
            return "import.large";
        case ProfileFileError::blank:
            return "import.blank";
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

std::string describeProfileFileError(ProfileFileError error) {
    return L(profileFileErrorKey(error));
}

}  // namespace tactora
