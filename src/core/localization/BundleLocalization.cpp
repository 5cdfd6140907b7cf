#include "core/localization/BundleLocalization.h"

#include <algorithm>
#include <system_error>

#include "core/localization/LanguagePreference.h"
#include "core/localization/StringsTable.h"

namespace tactora {

namespace {

constexpr std::string_view localizationExtension = ".lproj";

}  // namespace

std::vector<std::string> availableLocalizations(const std::filesystem::path& resourcesDirectory) {
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entries(resourcesDirectory, error);
    for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
        const std::filesystem::path& path = entries->path();
        std::error_code kindError;
        if (path.extension() != localizationExtension ||
            !std::filesystem::is_directory(path, kindError)) {
            continue;
        }
        std::string name = path.stem().string();
        if (!name.empty() && name != "Base") {
            names.push_back(std::move(name));
        }
    }
    std::ranges::sort(names);
    return names;
}

BundleLocalization loadBundleStringTable(const std::filesystem::path& resourcesDirectory,
                                         std::span<const std::string> preferredLanguages) {
    const std::vector<std::string> available = availableLocalizations(resourcesDirectory);
    BundleLocalization result;
    result.localization = chooseLocalization(available, preferredLanguages);
    if (result.localization) {
        result.table = StringsTable::loadLocalization(
            resourcesDirectory / (*result.localization + std::string(localizationExtension)),
            *result.localization);
    }
    return result;
}

}  // namespace tactora
