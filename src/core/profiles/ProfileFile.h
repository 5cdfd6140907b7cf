#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/profiles/WorkProfile.h"

namespace tactora {

// Why a file of exported profiles cannot be imported.
enum class ProfileFileError {
    tooLarge,      // more than maxProfileFileBytes
    blank,         // nothing at all, or only white space
    notJson,       // not one JSON text
    wrongShape,    // JSON, but not a list of profiles as the store writes them
    empty,         // a list without profiles
    duplicateIDs,  // two profiles of the list share an id
};

// Larger files are refused before they are parsed.
inline constexpr std::size_t maxProfileFileBytes = std::size_t{1024} * 1024;

// The profiles of an exported file, decoded with the store's rules but not yet sanitized, or
// what is wrong with it. Pure; any thread.
std::variant<std::vector<WorkProfile>, ProfileFileError> readProfileFile(std::string_view bytes);

// The localisation key of the sentence that says what is wrong, e.g. "import.blank".
const char* profileFileErrorKey(ProfileFileError error);

// That sentence, localised. Main thread only, as L() is.
std::string describeProfileFileError(ProfileFileError error);

}  // namespace tactora
