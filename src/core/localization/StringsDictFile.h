#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/localization/PluralFormat.h"
#include "core/localization/PropertyList.h"

namespace tactora {

// The plural entries of a .stringsdict file (an XML property list whose top-level dictionary
// maps each key to a PluralFormat). Variables of another rule type than NSStringPluralRuleType
// are not understood: their entry is left out, and so are entries without a format or whose
// format is not a string, each with a line in `problems`. Pure value; any thread.
struct StringsDictFile {
    std::map<std::string, PluralFormat, std::less<>> entries;
    // What was left out, and why, in plain English.
    std::vector<std::string> problems;
    // Why the property list could not be read; there are then no entries.
    std::optional<PropertyListDocument::Error> error;
};

// Reads a .stringsdict file from its bytes.
StringsDictFile parseStringsDictFile(std::string_view bytes);

// Reads and parses the file at `path`; nothing when it is not a readable regular file.
std::optional<StringsDictFile> readStringsDictFile(const std::filesystem::path& path);

}  // namespace tactora
