#include "core/profiles/WorkProfile.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tactora {
namespace {

using Shortcuts = std::vector<std::optional<SavedShortcut>>;

const Shortcuts noShortcuts(8);
const std::vector<ActionIndex> defaultActions(8, 0);

TEST(WorkProfile, NewProfileHasDefaultSlots) {
    const WorkProfile profile("Default");
    EXPECT_EQ(profile.name, "Default");
    EXPECT_EQ(profile.actions, defaultActions);
    EXPECT_EQ(profile.shortcuts, noShortcuts);
}

TEST(WorkProfile, NewProfilesNeverShareAnId) {
    EXPECT_NE(WorkProfile("A").id, WorkProfile("A").id);
    EXPECT_NE(WorkProfile("A").id, Uuid());
}

TEST(WorkProfile, ConstructorStoresListsAsGiven) {
    const WorkProfile profile("P", {14, 20, -1}, Shortcuts(2));
    EXPECT_EQ(profile.actions, (std::vector<ActionIndex>{14, 20, -1}));
    EXPECT_EQ(profile.shortcuts.size(), 2U);
}

TEST(WorkProfile, ConstructorWithIdKeepsIt) {
    const Uuid id = Uuid::random();
    const WorkProfile profile(id, "P", defaultActions, noShortcuts);
    EXPECT_EQ(profile.id, id);
}

TEST(WorkProfile, SanitizePadsShortListsAndDropsOutOfRangeActions) {
    WorkProfile profile("P", {14, 20, -1}, {});
    profile.sanitize();
    EXPECT_EQ(profile.actions, defaultActions);
    EXPECT_EQ(profile.shortcuts, noShortcuts);
}

TEST(WorkProfile, SanitizeKeepsTheFirstEightActions) {
    WorkProfile profile("P", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, noShortcuts);
    profile.sanitize();
    EXPECT_EQ(profile.actions, (std::vector<ActionIndex>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(WorkProfile, SanitizeKeepsTheFirstEightShortcuts) {
    Shortcuts shortcuts(10);
    shortcuts[7] = SavedShortcut(1, 0, "S");
    shortcuts[8] = SavedShortcut(2, 0, "D");
    shortcuts[9] = SavedShortcut(3, 0, "F");
    WorkProfile profile("P", defaultActions, shortcuts);
    profile.sanitize();
    ASSERT_EQ(profile.shortcuts.size(), 8U);
    EXPECT_EQ(profile.shortcuts[7], SavedShortcut(1, 0, "S"));
}

TEST(WorkProfile, SanitizeDropsShortcutWithDisallowedFlagsAndItsCustomAction) {
    Shortcuts shortcuts(8);
    shortcuts[3] = SavedShortcut::decoded(11, ModifierFlags::capsLock, "B");
    shortcuts[4] = SavedShortcut::decoded(11, ModifierFlags::capsLock, "B");
    WorkProfile profile("P", {0, 0, 0, action::custom, 5, 0, 0, 0}, shortcuts);
    profile.sanitize();
    EXPECT_EQ(profile.shortcuts, noShortcuts);
    EXPECT_EQ(profile.actions, (std::vector<ActionIndex>{0, 0, 0, 0, 5, 0, 0, 0}));
}

TEST(WorkProfile, SanitizeDropsShortcutWithLargeKeyCodeOrEmptyLabel) {
    Shortcuts shortcuts(8);
    shortcuts[0] = SavedShortcut::decoded(128, 0, "K");
    shortcuts[1] = SavedShortcut::decoded(1, 0, "");
    WorkProfile profile("P", defaultActions, shortcuts);
    profile.sanitize();
    EXPECT_EQ(profile.shortcuts, noShortcuts);
}

TEST(WorkProfile, SanitizeTurnsCustomActionWithoutShortcutIntoDefault) {
    WorkProfile profile("P", {14, 14, 0, 0, 0, 0, 0, 14}, noShortcuts);
    profile.sanitize();
    EXPECT_EQ(profile.actions, defaultActions);
}

TEST(WorkProfile, SanitizeKeepsShortcutOfSlotWithOtherAction) {
    Shortcuts shortcuts(8);
    shortcuts[2] = SavedShortcut(11, 0x100000, "⌘B");
    WorkProfile profile("P", {0, 0, 5, 0, 0, 0, 0, 0}, shortcuts);
    const WorkProfile before = profile;
    profile.sanitize();
    EXPECT_EQ(profile, before);
}

TEST(WorkProfile, SanitizeKeepsCustomActionWithValidShortcut) {
    Shortcuts shortcuts(8);
    shortcuts[6] = SavedShortcut(11, 0x100000, "⌘B");
    WorkProfile profile("P", {0, 1, 2, 3, 12, 13, 14, 4}, shortcuts);
    const WorkProfile before = profile;
    profile.sanitize();
    EXPECT_EQ(profile, before);
}

TEST(WorkProfile, SanitizeKeepsIdAndName) {
    WorkProfile profile("Name", {99}, {});
    const Uuid id = profile.id;
    profile.sanitize();
    EXPECT_EQ(profile.id, id);
    EXPECT_EQ(profile.name, "Name");
}

TEST(WorkProfile, EqualityComparesIdNameAndSlots) {
    const WorkProfile profile("P");
    WorkProfile other = profile;
    EXPECT_EQ(other, profile);
    other.name = "Q";
    EXPECT_NE(other, profile);
    EXPECT_NE(WorkProfile("P"), WorkProfile("P"));
}

}  // namespace
}  // namespace tactora
