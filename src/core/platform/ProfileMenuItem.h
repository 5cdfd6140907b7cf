#pragma once

#include <string>

namespace tactora {

// One entry of the profile pop-up: the profile's name, and its id's canonical text as the
// item's represented object.
struct ProfileMenuItem {
    std::string title;
    std::string representedID;

    bool operator==(const ProfileMenuItem&) const = default;
};

}  // namespace tactora
