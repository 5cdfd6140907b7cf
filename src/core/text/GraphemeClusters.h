#pragma once

#include <cstddef>
#include <string_view>

// User-perceived characters (extended grapheme clusters) of UTF-8 text, so that cutting a text
// never splits a letter from its accents, an emoji from its modifiers or a flag in two.
//
// A compact approximation of the Unicode segmentation rules: carriage return + line feed stay
// together; control characters stand alone; combining marks of the common scripts, spacing
// marks of Devanagari, Bengali and Thai, variation selectors, emoji modifiers, tag characters
// and zero-width joiners attach to what precedes them; a zero-width joiner between two
// pictographic characters joins them; regional indicators pair into flags; Hangul jamo join
// into syllables. Prepended concatenation marks and the rarer scripts' marks are not
// modelled: there a cluster may end one code point early.
namespace tactora::graphemes {

// The byte offset at which the cluster that starts at `offset` ends (`offset` < size).
std::size_t clusterEnd(std::string_view text, std::size_t offset);

// The number of clusters in `text`.
std::size_t count(std::string_view text);

// The first `limit` clusters of `text` (all of it when it has no more).
std::string_view prefix(std::string_view text, std::size_t limit);

}  // namespace tactora::graphemes
