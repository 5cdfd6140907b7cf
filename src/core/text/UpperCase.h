#pragma once

#include <string>
#include <string_view>

namespace tactora {

// `text` (UTF-8) in upper case, independent of the user's locale, the way key labels show the
// letter a key types.
//
// Covers the letters that keyboard layouts produce: Basic Latin, Latin-1 (ß becomes "SS"),
// Latin Extended-A, Greek (final sigma included), Cyrillic, Armenian and the full-width Latin
// letters. Anything else stays as it is.
std::string upperCased(std::string_view text);

}  // namespace tactora
