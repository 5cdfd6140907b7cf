#pragma once

#include <cstdint>
#include <string>

namespace tactora {

// An application with a bundle identifier, as the workspace lists it: its process id while it
// runs, and the name the user knows it by.
struct RunningApplication {
    std::int32_t processID = 0;
    std::string bundleID;
    std::string name;

    bool operator==(const RunningApplication&) const = default;
};

}  // namespace tactora
