#include "core/actions/SavedShortcut.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

TEST(SavedShortcut, AllowedFlagsAreTheFiveModifiers) {
    EXPECT_EQ(SavedShortcut::allowedFlags, 0x9E0000U);
}

TEST(SavedShortcut, SpaceIsValid) {
    EXPECT_TRUE(SavedShortcut(49, 0, "Space").isValid());
}

TEST(SavedShortcut, KeyCodeTooLargeIsInvalid) {
    EXPECT_FALSE(SavedShortcut(65535, 0, "Bad").isValid());
}

TEST(SavedShortcut, KeyCodeBoundaryIs128) {
    EXPECT_TRUE(SavedShortcut(127, 0, "K").isValid());
    EXPECT_FALSE(SavedShortcut(128, 0, "K").isValid());
}

TEST(SavedShortcut, CommandBIsValid) {
    const SavedShortcut shortcut(11, 0x100000, "⌘B");
    EXPECT_TRUE(shortcut.isValid());
    EXPECT_EQ(shortcut.flags, 0x100000U);
    EXPECT_EQ(shortcut.label, "⌘B");
    EXPECT_EQ(shortcut.keyCode, 11);
}

TEST(SavedShortcut, ConstructionDropsCapsLock) {
    const SavedShortcut shortcut(11, ModifierFlags::command | ModifierFlags::capsLock, "⌘B");
    EXPECT_EQ(shortcut.flags, 0x100000U);
    EXPECT_TRUE(shortcut.isValid());
}

TEST(SavedShortcut, ConstructionKeepsOnlyAllowedFlags) {
    const SavedShortcut shortcut(0, ~std::uint64_t{0}, "A");
    EXPECT_EQ(shortcut.flags, SavedShortcut::allowedFlags);
}

TEST(SavedShortcut, EmptyLabelIsInvalidWhateverTheKeyCode) {
    EXPECT_FALSE(SavedShortcut(0, 0, "").isValid());
    EXPECT_FALSE(SavedShortcut(49, ModifierFlags::command, "").isValid());
    EXPECT_FALSE(SavedShortcut(200, 0, "").isValid());
}

TEST(SavedShortcut, DecodedKeepsFlagsAsStored) {
    const SavedShortcut shortcut = SavedShortcut::decoded(11, ModifierFlags::capsLock, "B");
    EXPECT_EQ(shortcut.flags, ModifierFlags::capsLock);
    EXPECT_FALSE(shortcut.isValid());
}

TEST(SavedShortcut, DecodedWithAllowedFlagsEqualsConstructed) {
    EXPECT_EQ(SavedShortcut::decoded(11, 0x100000, "⌘B"), SavedShortcut(11, 0x100000, "⌘B"));
}

TEST(SavedShortcut, EqualityComparesAllFields) {
    const SavedShortcut shortcut(11, 0x100000, "⌘B");
    EXPECT_NE(shortcut, SavedShortcut(12, 0x100000, "⌘B"));
    EXPECT_NE(shortcut, SavedShortcut(11, 0x20000, "⌘B"));
    EXPECT_NE(shortcut, SavedShortcut(11, 0x100000, "B"));
}

}  // namespace
}  // namespace tactora
