#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/console/Program.h"
#include "core/localization/BundleLocalization.h"
#include "core/localization/LanguagePreference.h"
#include "core/localization/Localizer.h"
#include "core/text/TextHandling.h"
#include "linux/BundleLocation.h"
#include "linux/LinuxProgramEnvironment.h"

namespace {
std::optional<std::string> environmentVariable(std::string_view name) {
    const char* value = std::getenv(std::string(name).c_str());
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}
}  // namespace

int main(int argc, char* argv[]) {
    const std::vector<std::string> arguments(argv, argv + argc);
    tactora::installTextHandling(tactora::makePlatformTextHandling());
    const auto resources = tactora::bundleResourcesDirectory(argc > 0 ? argv[0] : nullptr);
    const auto languages = tactora::preferredLanguages(environmentVariable);
    auto localization = tactora::loadBundleStringTable(resources, languages);
    tactora::setStringTable(localization.table);
    tactora::LinuxProgramEnvironment environment(resources, localization.localization);
    return tactora::runProgram(arguments, environment);
}
