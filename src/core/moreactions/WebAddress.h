#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tactora {

// The address to open for what the user typed: trimmed of surrounding blanks; a bare host name
// such as "www.apple.com/mac" gets "https://". Nothing when it is not a URL: no scheme (letters,
// then letters, digits, "+", "-" or "."), nothing after the colon, a web scheme without a host,
// or a blank or control character inside. Pure.
std::optional<std::string> webAddress(std::string_view typed);

}  // namespace tactora
