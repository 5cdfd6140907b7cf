#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tactora {

struct PropertyListEntry;

// A value of an XML property list, as far as localisation files need one: strings,
// dictionaries and arrays in full; any other value (integer, real, true, false, date, data)
// only by its element's name. Pure value; any thread.
struct PropertyList {
    enum class Kind : std::uint8_t { string, dictionary, array, other };

    Kind kind = Kind::other;
    std::string text;  // a string's text; the element's name for any other value
    std::vector<PropertyListEntry> entries;  // a dictionary's, in order
    std::vector<PropertyList> items;         // an array's

    // The dictionary's value for `key` (the first, when given twice); null when there is none
    // or this is no dictionary.
    const PropertyList* find(std::string_view key) const;

    // The dictionary's string for `key`; nothing when absent or not a string.
    std::optional<std::string> string(std::string_view key) const;
};

// One key of a dictionary and its value.
struct PropertyListEntry {
    std::string key;
    PropertyList value;
};

// What reading an XML property list gave: its root value, or why there is none.
struct PropertyListDocument {
    struct Error {
        std::size_t line = 0;  // 1-based
        std::string message;

        bool operator==(const Error&) const = default;
    };

    std::optional<PropertyList> root;
    std::optional<Error> error;
};

// Reads the XML form of a property list (UTF-8, or UTF-16 with a byte order mark): the XML
// declaration, a document type, comments and white space between elements are skipped; the
// entities &lt; &gt; &amp; &quot; &apos; and character references (&#233; &#xE9;) and CDATA
// sections are read. Anything malformed, or nested deeper than 64 levels, is an error with its
// line, and there is then no root. Pure function; any thread.
PropertyListDocument parsePropertyListXml(std::string_view bytes);

}  // namespace tactora
