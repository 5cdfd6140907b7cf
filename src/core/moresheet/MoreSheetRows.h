#pragma once

#include <optional>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/app/ExtraActionPerformer.h"
#include "core/platform/MoreSheetContent.h"
#include "core/profiles/MoreGestureMap.h"
#include "core/profiles/MoreGestureSlot.h"

// What the More Gestures sheet shows of a profile's further gestures. Texts localised, from the
// current string table; the action names are choices(), so initializeGlobals() must have run.
// Main thread only.
namespace tactora::moresheet {

// The top band's slider stops every this much of the surface's length.
inline constexpr double topBandStep = 0.05;

// The first of the actions a slot's pop-up offers, top to bottom, before the further actions'
// groups: the fifteen in catalogue order, except that
// the tap-and-hold slot, whose action is the button it holds down, offers the middle click
// right after the default, as the button it is meant for.
std::vector<ActionIndex> offeredActions(MoreGestureSlot slot);

// The sheet for `map`: the region taps (with the top band's depth), the tip taps, the swipes
// with one to three fingers in four directions, and tap and hold, each row offering the
// further actions after those and showing its slot's action and shortcut as the gesture rows
// do; a slot with a further action shows the record button `extras` gives it (none without
// `extras`, as the gesture rows do without them).
MoreSheetContent moreSheetContent(const MoreGestureMap& map,
                                  ExtraActionPerformer* extras = nullptr);

// The depth the slider's `depth` stands for: the nearest of its stops, within the band's range.
// Nothing for a depth that is not a number.
std::optional<double> topBandStop(double depth);

}  // namespace tactora::moresheet
