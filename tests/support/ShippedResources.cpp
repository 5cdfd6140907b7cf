#include "support/ShippedResources.h"

#include <cstdlib>
#include <vector>

#include "core/localization/BundleLocalization.h"
#include "core/localization/Localizer.h"

namespace tactora::testing {

std::filesystem::path shippedResourcesDirectory() {
    if (const char* source = std::getenv("TACTORA_SOURCE_DIR")) {
        return std::filesystem::path(source) / "resources";
    }
    return std::filesystem::path(TACTORA_TEST_SOURCE_DIR) / "resources";
}

std::optional<std::string> useShippedStringTable(const std::string& language) {
    const BundleLocalization loaded =
        loadBundleStringTable(shippedResourcesDirectory(), std::vector{language});
    setStringTable(loaded.table);
    return loaded.localization;
}

}  // namespace tactora::testing
