#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tactora {

// One row of the settings window's gesture table.
struct GestureRow {
    std::optional<std::string> heading;  // the section heading shown above the row, if any
    std::string fingerLabel;
    std::int64_t slot = 0;  // the row's gesture slot, also its controls' tag

    bool operator==(const GestureRow&) const = default;
};

// What a row calls `fingers` fingers (1 to 4), as the gesture rows and swipe rows show it.
// Localised; main thread only.
std::string fingerLabel(std::int64_t fingers);

// The eight rows, top to bottom: the physical clicks with one to four fingers (slots 0 to 3),
// then the taps (slots 4 to 7). Texts localised; main thread only.
std::vector<GestureRow> gestureRows();

}  // namespace tactora
