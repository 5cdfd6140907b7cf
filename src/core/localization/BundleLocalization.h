#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/localization/StringTable.h"

namespace tactora {

// The localisation chosen from an application bundle's resources, and its table. What the
// off-macOS entry installs with setStringTable and reports on the "Language: " line.
struct BundleLocalization {
    // The chosen localisation's name ("pt-BR"); nothing when the bundle has none.
    std::optional<std::string> localization;
    // Its Localizable.strings with the plural entries of its Localizable.stringsdict; null when
    // nothing was chosen or the .strings file can't be read.
    std::shared_ptr<const StringTable> table;
};

// The localisations a resources directory offers: the names of its "<name>.lproj" folders,
// sorted, without "Base". Empty when the directory can't be read. Any thread.
std::vector<std::string> availableLocalizations(const std::filesystem::path& resourcesDirectory);

// Chooses among the available localisations for `preferredLanguages` (chooseLocalization) and
// reads "<resources>/<name>.lproj/Localizable.strings" and, when there is one, the
// Localizable.stringsdict beside it. Entries before a parse error are kept.
// Any thread; the result is installed on the main thread.
BundleLocalization loadBundleStringTable(const std::filesystem::path& resourcesDirectory,
                                         std::span<const std::string> preferredLanguages);

}  // namespace tactora
