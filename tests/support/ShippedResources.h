#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tactora::testing {

// The source tree's resources directory, where the shipped icon and string tables live: under
// TACTORA_SOURCE_DIR when CTest sets it, else under the source directory the tests were built
// from.
std::filesystem::path shippedResourcesDirectory();

// Installs the shipped string table of `language` as the current one, as start-up does, and
// returns the localisation that was chosen (nothing when the resources offer none).
std::optional<std::string> useShippedStringTable(const std::string& language);

}  // namespace tactora::testing
