#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace tactora {

// One argument of a localised text: an integer (for %d and its kin) or a string (for %@).
using FormatArgument = std::variant<std::int64_t, std::string>;

}  // namespace tactora
