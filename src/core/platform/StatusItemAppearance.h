#pragma once

#include <string>

namespace tactora {

// How the status-bar item's button looks: a template image of a system symbol, and a title
// that is empty unless the menu-bar feedback shows a gesture's finger count.
struct StatusItemAppearance {
    std::string symbolName;
    std::string accessibilityDescription;
    std::string toolTip;
    std::string title;

    bool operator==(const StatusItemAppearance&) const = default;
};

}  // namespace tactora
