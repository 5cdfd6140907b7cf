#pragma once

#include <string>

namespace tactora {

// How the status-bar item's button looks: a template image of a system symbol, no title.
struct StatusItemAppearance {
    std::string symbolName;
    std::string accessibilityDescription;
    std::string toolTip;

    bool operator==(const StatusItemAppearance&) const = default;
};

}  // namespace tactora
