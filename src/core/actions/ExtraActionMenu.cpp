#include "core/actions/ExtraActionMenu.h"

#include <optional>

#include "core/actions/ExtraActionInfo.h"
#include "core/localization/Localizer.h"

namespace tactora {

std::vector<std::vector<ActionMenuEntry>> extraActionMenu() {
    std::vector<std::vector<ActionMenuEntry>> groups;
    std::optional<ExtraActionGroup> current;
    for (const catalogue::ExtraActionInfo& entry : catalogue::extraActions()) {
        if (entry.group != current) {
            groups.emplace_back();
            current = entry.group;
        }
        groups.back().push_back({L(entry.textKey), action::index(entry.action)});
    }
    return groups;
}

}  // namespace tactora
