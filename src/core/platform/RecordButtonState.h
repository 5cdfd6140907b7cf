#pragma once

#include <string>

namespace tactora {

// How a gesture slot's record button looks.
struct RecordButtonState {
    bool enabled = false;
    std::string title;
    std::string toolTip;

    bool operator==(const RecordButtonState&) const = default;
};

}  // namespace tactora
