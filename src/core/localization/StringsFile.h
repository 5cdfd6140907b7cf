#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tactora {

// The contents of a localisation table in the .strings format:
//
//     /* A comment */  "key" = "value";   // another comment
//     plain_key = plain.value;            "key only";
//
// Keys and values are quoted strings, with the escapes \" \\ \' \n \t \r \a \b \f \v and \Uxxxx
// (four hex digits, one UTF-16 code unit; a surrogate pair written as two escapes makes one
// character, an unpaired surrogate becomes U+FFFD); any other escaped character stands for
// itself. Unquoted keys and values may use ASCII letters, digits and _ $ + / : . -. An entry
// with no value ("key";) maps the key to itself. Whitespace may stand anywhere between tokens.
// A later entry for the same key replaces the earlier one.
//
// Malformed input is not fatal: the entries read before the first error are kept and the error
// is reported with its line, so that a checker can show it. Pure value; any thread.
struct StringsFile {
    struct Error {
        std::size_t line = 0;  // 1-based
        std::string message;

        bool operator==(const Error&) const = default;
    };

    std::map<std::string, std::string, std::less<>> entries;
    // Keys that had an entry already when they appeared again, in order of appearance.
    std::vector<std::string> duplicateKeys;
    std::optional<Error> error;
};

// Parses a table from the bytes of a file: UTF-8 with or without a byte order mark, or UTF-16
// with one (see decodeText). Text that is not valid in its encoding ends the parse with an
// error at the line where it stands.
StringsFile parseStringsFile(std::string_view bytes);

// Reads and parses the file at `path`; nothing when it is not a readable regular file.
std::optional<StringsFile> readStringsFile(const std::filesystem::path& path);

}  // namespace tactora
