#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <variant>

#include "core/profiles/Preferences.h"

namespace tactora {

// One stored preference value; the alternative held is its type.
using PreferenceValue = std::variant<Bytes, std::string, std::int64_t>;

// The values of one preferences domain by key.
using PreferenceValues = std::map<std::string, PreferenceValue, std::less<>>;

}  // namespace tactora
