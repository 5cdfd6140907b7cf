#pragma once

#include <cstdint>
#include <string>

namespace tactora {

// An item of the action pop-ups beyond the catalogue's fifteen: its title and the action index
// it stands for (its tag).
struct ActionMenuEntry {
    std::string title;
    std::int64_t action = 0;

    bool operator==(const ActionMenuEntry&) const = default;
};

}  // namespace tactora
