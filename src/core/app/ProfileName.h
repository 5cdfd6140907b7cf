#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tactora {

// The longest profile name, in user-perceived characters.
inline constexpr std::size_t maxProfileNameLength = 60;

// The profile name made of what the user typed: white space and line breaks trimmed from both
// ends, then cut after its first 60 user-perceived characters (never inside one), both as the
// installed text handling reads them. Nothing when that leaves no text. Main thread only.
std::optional<std::string> profileName(std::string_view entered);

}  // namespace tactora
