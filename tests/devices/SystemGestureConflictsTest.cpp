#include "core/devices/SystemGestureConflicts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "core/profiles/GestureSlot.h"

namespace tactora {
namespace {

using Conflicts = std::vector<GestureConflict>;
using enum SystemTrackpadGesture;

// Trackpad slots with only `slot` mapped.
GestureSlots mapped(std::int64_t slot) {
    GestureSlots slots;
    slots.actions[static_cast<std::size_t>(slot)] = action::middle;
    return slots;
}

// Every system gesture off.
constexpr TrackpadSettings none{.tapToClick = false,
                                .secondaryClick = false,
                                .threeFingerDrag = false,
                                .lookUpByThreeFingerTap = false,
                                .smartZoom = false};

TrackpadSettings only(SystemTrackpadGesture gesture) {
    TrackpadSettings settings = none;
    settings.tapToClick = gesture == tapToClick;
    settings.secondaryClick = gesture == secondaryClick;
    settings.threeFingerDrag = gesture == threeFingerDrag;
    settings.lookUpByThreeFingerTap = gesture == lookUp;
    settings.smartZoom = gesture == smartZoom;
    return settings;
}

TrackpadSettings all() {
    return {.tapToClick = true,
            .secondaryClick = true,
            .threeFingerDrag = true,
            .lookUpByThreeFingerTap = true,
            .smartZoom = true};
}

TEST(SystemGestureConflicts, NothingMappedConflictsWithNothing) {
    EXPECT_TRUE(systemGestureConflicts(GestureSlots(), all()).empty());
}

TEST(SystemGestureConflicts, NothingSwitchedOnConflictsWithNothing) {
    GestureSlots everything;
    everything.actions = std::vector<ActionIndex>(slot::count, action::middle);

    EXPECT_TRUE(systemGestureConflicts(everything, none).empty());
}

TEST(SystemGestureConflicts, TapToClickTakesTheOneFingerTapOnly) {
    EXPECT_EQ(systemGestureConflicts(mapped(slot::forTap(1)), only(tapToClick)),
              (Conflicts{{slot::forTap(1), tapToClick}}));
    for (const std::int64_t other : {slot::forClick(1), slot::forTap(2), slot::forTap(3)}) {
        EXPECT_TRUE(systemGestureConflicts(mapped(other), only(tapToClick)).empty()) << other;
    }
}

TEST(SystemGestureConflicts, SecondaryClickTakesTheTwoFingerClick) {
    EXPECT_EQ(systemGestureConflicts(mapped(slot::forClick(2)), only(secondaryClick)),
              (Conflicts{{slot::forClick(2), secondaryClick}}));
}

TEST(SystemGestureConflicts, SecondaryClickTakesTheTwoFingerTapOnlyWithTapToClick) {
    EXPECT_TRUE(systemGestureConflicts(mapped(slot::forTap(2)), only(secondaryClick)).empty());

    TrackpadSettings settings = only(secondaryClick);
    settings.tapToClick = true;
    EXPECT_EQ(systemGestureConflicts(mapped(slot::forTap(2)), settings),
              (Conflicts{{slot::forTap(2), secondaryClick}}));
}

TEST(SystemGestureConflicts, ThreeFingerDragTakesTheThreeFingerTapAndClick) {
    EXPECT_EQ(systemGestureConflicts(mapped(slot::forTap(3)), only(threeFingerDrag)),
              (Conflicts{{slot::forTap(3), threeFingerDrag}}));
    EXPECT_EQ(systemGestureConflicts(mapped(slot::forClick(3)), only(threeFingerDrag)),
              (Conflicts{{slot::forClick(3), threeFingerDrag}}));
    EXPECT_TRUE(systemGestureConflicts(mapped(slot::forTap(4)), only(threeFingerDrag)).empty());
}

TEST(SystemGestureConflicts, LookUpTakesTheThreeFingerTapButNotTheClick) {
    EXPECT_EQ(systemGestureConflicts(mapped(slot::forTap(3)), only(lookUp)),
              (Conflicts{{slot::forTap(3), lookUp}}));
    EXPECT_TRUE(systemGestureConflicts(mapped(slot::forClick(3)), only(lookUp)).empty());
}

TEST(SystemGestureConflicts, SmartZoomTakesTheTwoFingerTap) {
    EXPECT_EQ(systemGestureConflicts(mapped(slot::forTap(2)), only(smartZoom)),
              (Conflicts{{slot::forTap(2), smartZoom}}));
    EXPECT_TRUE(systemGestureConflicts(mapped(slot::forClick(2)), only(smartZoom)).empty());
}

TEST(SystemGestureConflicts, FourFingerGesturesCompeteWithNothing) {
    GestureSlots four;
    four.actions[static_cast<std::size_t>(slot::forTap(4))] = action::middle;
    four.actions[static_cast<std::size_t>(slot::forClick(4))] = action::middle;

    EXPECT_TRUE(systemGestureConflicts(four, all()).empty());
}

TEST(SystemGestureConflicts, ListsEveryConflictBySlotThenByGesture) {
    GestureSlots slots;
    slots.actions = std::vector<ActionIndex>(slot::count, action::middle);

    EXPECT_EQ(systemGestureConflicts(slots, all()), (Conflicts{{slot::forClick(2), secondaryClick},
                                                               {slot::forClick(3), threeFingerDrag},
                                                               {slot::forTap(1), tapToClick},
                                                               {slot::forTap(2), secondaryClick},
                                                               {slot::forTap(2), smartZoom},
                                                               {slot::forTap(3), threeFingerDrag},
                                                               {slot::forTap(3), lookUp}}));
}

// Every pair of a mapped slot and a system gesture switched on by itself, and whether they
// compete.
TEST(SystemGestureConflicts, EveryPairOfSlotAndSystemGesture) {
    // The pairs that compete; every other one does not.
    const std::vector<std::pair<std::int64_t, SystemTrackpadGesture>> competing = {
        {slot::forTap(1), tapToClick},      {slot::forClick(2), secondaryClick},
        {slot::forTap(3), threeFingerDrag}, {slot::forClick(3), threeFingerDrag},
        {slot::forTap(3), lookUp},          {slot::forTap(2), smartZoom},
    };
    for (std::int64_t slot = 0; slot < std::int64_t{slot::count}; ++slot) {
        for (const SystemTrackpadGesture gesture : systemTrackpadGestures) {
            const bool expected =
                std::ranges::find(competing, std::pair{slot, gesture}) != competing.end();
            const Conflicts found = systemGestureConflicts(mapped(slot), only(gesture));
            const Conflicts wanted = expected ? Conflicts{{slot, gesture}} : Conflicts{};
            EXPECT_EQ(found, wanted) << "slot " << slot << " gesture " << static_cast<int>(gesture);
        }
    }
}

TEST(SystemGestureConflicts, AShortcutWithoutAnActionIsNotAMapping) {
    GestureSlots slots;
    slots.shortcuts[static_cast<std::size_t>(slot::forTap(1))] = SavedShortcut(11, 0x100000, "⌘B");

    EXPECT_TRUE(systemGestureConflicts(slots, all()).empty());
}

TEST(SystemGestureConflicts, ASlotWithAnExtraActionIsMapped) {
    GestureSlots slots;
    slots.extras.resize(slot::count);
    slots.extras[static_cast<std::size_t>(slot::forTap(3))] =
        SlotExtra{.action = ExtraAction::playPause, .value = ""};

    EXPECT_EQ(systemGestureConflicts(slots, all()),
              (Conflicts{{slot::forTap(3), threeFingerDrag}, {slot::forTap(3), lookUp}}));
}

TEST(SystemGestureConflicts, AnExtraInAnotherSlotMapsOnlyItsOwn) {
    GestureSlots slots;
    slots.extras.resize(slot::count);
    slots.extras[static_cast<std::size_t>(slot::forTap(4))] =
        SlotExtra{.action = ExtraAction::openAddress, .value = "https://example.com"};

    EXPECT_TRUE(systemGestureConflicts(slots, all()).empty());
}

TEST(SystemGestureConflicts, ShortListsAreReadAsFarAsTheyGo) {
    GestureSlots shortSlots;
    shortSlots.actions = {0, action::middle};
    shortSlots.shortcuts.clear();

    EXPECT_EQ(systemGestureConflicts(shortSlots, all()),
              (Conflicts{{slot::forClick(2), secondaryClick}}));
}

TEST(SystemGestureConflicts, ThreeFingerDragOpensAccessibilityAndTheRestTheTrackpadPane) {
    EXPECT_EQ(settingsAddress(threeFingerDrag),
              "x-apple.systempreferences:com.apple.preference.universalaccess?Mouse");
    for (const SystemTrackpadGesture gesture : {tapToClick, secondaryClick, lookUp, smartZoom}) {
        EXPECT_EQ(settingsAddress(gesture),
                  "x-apple.systempreferences:com.apple.preference.trackpad");
    }
}

}  // namespace
}  // namespace tactora
