#include "core/moresheet/MoreSheetRows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include "core/app/GestureRow.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"

namespace tactora::moresheet {

namespace {

constexpr std::array<const char*, 4> directionKeys = {"more.swipe.up", "more.swipe.down",
                                                      "more.swipe.left", "more.swipe.right"};

MoreSheetRow row(const MoreGestureMap& map, MoreGestureSlot slot, std::string label) {
    const std::vector<std::string>& names = choices();
    std::vector<ActionMenuEntry> items;
    for (const ActionIndex action : offeredActions(slot)) {
        const auto index = static_cast<std::size_t>(action);
        items.push_back({index < names.size() ? names[index] : std::string(), action});
    }
    const ActionIndex action = map.action(slot);
    const std::optional<SavedShortcut>& shortcut = map.shortcut(slot);
    return {
        .group = std::nullopt,
        .label = std::move(label),
        .slot = static_cast<std::int64_t>(moreslot::index(slot)),
        .actions = std::move(items),
        .action = action,
        .record =
            {
                .enabled = action == action::custom,
                .title = shortcut ? shortcut->label : L("record.button"),
                .toolTip = L("record.button"),
            },
    };
}

MoreSheetSection regionSection(const MoreGestureMap& map) {
    return {.heading = L("more.section.region"),
            .rows = {row(map, MoreGestureSlot::tapLeft, L("more.tap.left")),
                     row(map, MoreGestureSlot::tapRight, L("more.tap.right")),
                     row(map, MoreGestureSlot::tapTop, L("more.tap.top"))},
            .showsTopBand = true};
}

MoreSheetSection tipSection(const MoreGestureMap& map) {
    return {.heading = L("more.section.tip"),
            .rows = {row(map, MoreGestureSlot::tipTapLeft, L("more.tip.left")),
                     row(map, MoreGestureSlot::tipTapRight, L("more.tip.right"))}};
}

MoreSheetSection swipeSection(const MoreGestureMap& map) {
    MoreSheetSection section{.heading = L("more.section.swipe"), .rows = {}};
    for (std::int64_t fingers = 1; fingers <= moreslot::maxSwipeFingers; ++fingers) {
        for (std::size_t direction = 0; direction < directionKeys.size(); ++direction) {
            const MoreGestureSlot slot =
                moreslot::forSwipe(fingers, static_cast<SwipeDirection>(direction));
            MoreSheetRow swipe = row(map, slot, L(directionKeys.at(direction)));
            if (direction == 0) {
                swipe.group = fingerLabel(fingers);
            }
            section.rows.push_back(std::move(swipe));
        }
    }
    return section;
}

MoreSheetSection holdSection(const MoreGestureMap& map) {
    return {.heading = L("more.section.hold"),
            .rows = {row(map, MoreGestureSlot::tapHold, L("more.hold"))}};
}

}  // namespace

std::vector<ActionIndex> offeredActions(MoreGestureSlot slot) {
    std::vector<ActionIndex> actions;
    actions.reserve(static_cast<std::size_t>(action::count));
    for (ActionIndex action = 0; action < action::count; ++action) {
        actions.push_back(action);
    }
    if (slot == MoreGestureSlot::tapHold) {
        // Default, middle, left, right, then the rest as in the catalogue.
        std::rotate(actions.begin() + action::left, actions.begin() + action::middle,
                    actions.begin() + action::middle + 1);
    }
    return actions;
}

MoreSheetContent moreSheetContent(const MoreGestureMap& map) {
    return {
        .title = L("more.title"),
        .intro = L("more.intro"),
        .sections = {regionSection(map), tipSection(map), swipeSection(map), holdSection(map)},
        .topBand =
            {
                .label = L("more.top.depth"),
                .value = map.topBand,
                .smallest = MoreGestureMap::smallestTopBand,
                .largest = MoreGestureMap::largestTopBand,
                .step = topBandStep,
            },
        .doneButton = L("more.done"),
    };
}

std::optional<double> topBandStop(double depth) {
    if (std::isnan(depth)) {
        return std::nullopt;
    }
    const double smallest = MoreGestureMap::smallestTopBand;
    const double largest = MoreGestureMap::largestTopBand;
    const double stops =
        std::round((std::clamp(depth, smallest, largest) - smallest) / topBandStep);
    return std::clamp(smallest + stops * topBandStep, smallest, largest);
}

}  // namespace tactora::moresheet
