#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/localization/LocalizationKey.h"
#include "core/localization/StringsDictFile.h"
#include "core/localization/StringsFile.h"

namespace tactora {

// Checks of the localisation tables against the key list, for the tests and for anyone who
// edits a table. Each problem is one line of plain English. Pure functions; any thread.

// What is wrong with `text` as the text of `key`, or nothing. A key without arguments is shown
// unformatted, so its text must hold no conversion ("%%" included). A key with arguments is
// formatted, so its text must hold only "%%" and conversions that each show one of the key's
// shown arguments with the matching kind (%@ for a string, a signed %d, %i, %ld, %lld, %qd,
// %zd... for an integer, not the shorter %hd or %hhd; flags, widths and precisions as written
// are fine, "*" is not), every shown argument at least once and no unshown one; either all
// sequential, standing in the order of the arguments, or all positional ("%2$@"), in any
// order.
std::optional<std::string> auditLocalizedText(const LocalizationKey& key, std::string_view text);

// Everything wrong with a table: its parse error, keys given twice, missing and unknown keys,
// and the problems of each text. Empty for a good table.
std::vector<std::string> auditStringsFile(const StringsFile& file);

// Everything wrong with a .stringsdict table: its parse error and the entries it left out,
// unknown keys and keys without arguments (whose texts are never formatted), and for each
// entry: its format, with each variable standing for a "%lld" of the argument it takes, must
// fit the key as auditLocalizedText says; every variable it names must be defined, have a
// signed integer value type of 32 bits or more ("lld") and an "other" form; and every form may
// show only the variable's value, by a signed integer conversion (it may leave it out), and
// "%%". Empty for a good table.
std::vector<std::string> auditStringsDictFile(const StringsDictFile& file);

}  // namespace tactora
