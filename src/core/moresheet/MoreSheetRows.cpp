#include "core/moresheet/MoreSheetRows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include "core/actions/ExtraActionMenu.h"
#include "core/app/GestureRow.h"
#include "core/app/Globals.h"
#include "core/app/RowRecordButton.h"
#include "core/localization/Localizer.h"

namespace tactora::moresheet {

namespace {

constexpr std::array<const char*, 4> directionKeys = {"more.swipe.up", "more.swipe.down",
                                                      "more.swipe.left", "more.swipe.right"};

// What a row builds from besides its slot: the sheet's mapping, what titles the buttons of the
// further actions, and their groups as every pop-up lists them.
struct RowSource {
    const MoreGestureMap& map;
    ExtraActionPerformer* extras;
    std::vector<std::vector<ActionMenuEntry>> extraGroups;
};

MoreSheetRow row(const RowSource& source, MoreGestureSlot slot, std::string label) {
    const std::vector<std::string>& names = choices();
    std::vector<ActionMenuEntry> items;
    for (const ActionIndex action : offeredActions(slot)) {
        const auto index = static_cast<std::size_t>(action);
        items.push_back({index < names.size() ? names[index] : std::string(), action});
    }
    return {
        .group = std::nullopt,
        .label = std::move(label),
        .slot = static_cast<std::int64_t>(moreslot::index(slot)),
        .actions = std::move(items),
        .extraActionGroups = source.extraGroups,
        .action = source.map.action(slot),
        .record = rowRecordButton(source.map.action(slot), source.map.shortcut(slot),
                                  source.map.extra(slot), source.extras),
    };
}

MoreSheetSection regionSection(const RowSource& source) {
    return {.heading = L("more.section.region"),
            .rows = {row(source, MoreGestureSlot::tapLeft, L("more.tap.left")),
                     row(source, MoreGestureSlot::tapRight, L("more.tap.right")),
                     row(source, MoreGestureSlot::tapTop, L("more.tap.top"))},
            .showsTopBand = true};
}

MoreSheetSection tipSection(const RowSource& source) {
    return {.heading = L("more.section.tip"),
            .rows = {row(source, MoreGestureSlot::tipTapLeft, L("more.tip.left")),
                     row(source, MoreGestureSlot::tipTapRight, L("more.tip.right"))}};
}

MoreSheetSection swipeSection(const RowSource& source) {
    MoreSheetSection section{.heading = L("more.section.swipe"), .rows = {}};
    for (std::int64_t fingers = 1; fingers <= moreslot::maxSwipeFingers; ++fingers) {
        for (std::size_t direction = 0; direction < directionKeys.size(); ++direction) {
            const MoreGestureSlot slot =
                moreslot::forSwipe(fingers, static_cast<SwipeDirection>(direction));
            MoreSheetRow swipe = row(source, slot, L(directionKeys.at(direction)));
            if (direction == 0) {
                swipe.group = fingerLabel(fingers);
            }
            section.rows.push_back(std::move(swipe));
        }
    }
    return section;
}

MoreSheetSection holdSection(const RowSource& source) {
    return {.heading = L("more.section.hold"),
            .rows = {row(source, MoreGestureSlot::tapHold, L("more.hold"))}};
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

MoreSheetContent moreSheetContent(const MoreGestureMap& map, ExtraActionPerformer* extras) {
    const RowSource source{.map = map, .extras = extras, .extraGroups = extraActionMenu()};
    return {
        .title = L("more.title"),
        .intro = L("more.intro"),
        .sections = {regionSection(source), tipSection(source), swipeSection(source),
                     holdSection(source)},
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
