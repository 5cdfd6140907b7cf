#include "core/app/GestureRow.h"

#include <array>
#include <cstddef>

#include "core/localization/Localizer.h"

namespace tactora {

std::string fingerLabel(std::int64_t fingers) {
    return fingers == 1 ? L("finger.one") : L("finger.many", fingers);
}

std::vector<GestureRow> gestureRows() {
    constexpr std::array<const char*, 2> headings = {"section.click", "section.tap"};
    std::vector<GestureRow> rows;
    for (std::int64_t section = 0; section < 2; ++section) {
        for (std::int64_t fingers = 1; fingers <= 4; ++fingers) {
            std::optional<std::string> heading;
            if (fingers == 1) {
                heading = L(headings.at(static_cast<std::size_t>(section)));
            }
            rows.push_back({std::move(heading), fingerLabel(fingers), section * 4 + fingers - 1});
        }
    }
    return rows;
}

}  // namespace tactora
