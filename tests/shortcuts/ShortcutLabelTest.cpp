#include "core/shortcuts/ShortcutLabel.h"

#include <gtest/gtest.h>

#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"

namespace tactora {
namespace {

KeyPress key(std::uint16_t keyCode, std::uint64_t flags = 0,
             std::optional<std::string> characters = std::nullopt) {
    return {.keyCode = keyCode,
            .modifierFlags = flags,
            .isRepeat = false,
            .charactersIgnoringModifiers = std::move(characters),
            .inDialogWindow = true};
}

class ShortcutLabelTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setStringTable(std::make_shared<const StringsTable>(
            StringsTable::Entries{{"key.return", "Return"}, {"key.space", "Space"}}));
    }
    void TearDown() override { setStringTable(nullptr); }
};

TEST_F(ShortcutLabelTest, ShiftCommandKReadsShiftCommandK) {
    EXPECT_EQ(shortcutLabel(key(40, 0x120000, "k")), "⇧⌘K");
}

TEST_F(ShortcutLabelTest, AllFourModifiersStandInFixedOrderBeforeTheFunctionKey) {
    EXPECT_EQ(shortcutLabel(key(96, 0x100000 | 0x80000 | 0x20000 | 0x40000, "\u0010")), "⌃⌥⇧⌘F5");
}

TEST_F(ShortcutLabelTest, FunctionFlagAndOtherBitsGetNoGlyph) {
    EXPECT_EQ(shortcutLabel(key(0, 0x800000 | 0x10000 | 0x200000, "a")), "A");
}

TEST_F(ShortcutLabelTest, EveryFunctionKeyIsNamedByItsNumber) {
    const std::uint16_t codes[] = {122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                                   103, 111, 105, 107, 113, 106, 64, 79,  80,  90};
    for (std::size_t i = 0; i < std::size(codes); ++i) {
        EXPECT_EQ(shortcutLabel(key(codes[i], 0, "x")), "F" + std::to_string(i + 1));
    }
}

TEST_F(ShortcutLabelTest, KeypadEnterAndReturnBothReadAsReturn) {
    EXPECT_EQ(shortcutLabel(key(36, 0, "\r")), "Return");
    EXPECT_EQ(shortcutLabel(key(76, 0, "\u0003")), "Return");
}

TEST_F(ShortcutLabelTest, HomeShowsTheNorthWestArrowAndOtherKeysTheirNames) {
    EXPECT_EQ(shortcutLabel(key(115)), "↖");
    EXPECT_EQ(shortcutLabel(key(119)), "↘");
    EXPECT_EQ(shortcutLabel(key(116)), "⇞");
    EXPECT_EQ(shortcutLabel(key(121)), "⇟");
    EXPECT_EQ(shortcutLabel(key(123)), "←");
    EXPECT_EQ(shortcutLabel(key(124)), "→");
    EXPECT_EQ(shortcutLabel(key(125)), "↓");
    EXPECT_EQ(shortcutLabel(key(126)), "↑");
    EXPECT_EQ(shortcutLabel(key(49, 0x40000, " ")), "⌃Space");
    EXPECT_EQ(shortcutLabel(key(48)), "key.tab");
    EXPECT_EQ(shortcutLabel(key(51)), "key.delete");
    EXPECT_EQ(shortcutLabel(key(53)), "key.escape");
    EXPECT_EQ(shortcutLabel(key(117)), "key.forwarddelete");
}

TEST_F(ShortcutLabelTest, KeyWithoutCharactersOrTableEntryIsNamedHashAndItsCode) {
    EXPECT_EQ(shortcutLabel(key(10)), "#10");
    EXPECT_EQ(shortcutLabel(key(10, 0x100000)), "⌘#10");
}

TEST_F(ShortcutLabelTest, EmptyCharactersAreNotTheSameAsNone) {
    EXPECT_EQ(shortcutLabel(key(10, 0, "")), "");
}

TEST_F(ShortcutLabelTest, CharactersAreUpperCased) {
    EXPECT_EQ(shortcutLabel(key(41, 0, "ç")), "Ç");
    EXPECT_EQ(shortcutLabel(key(27, 0, "ß")), "SS");
    EXPECT_EQ(shortcutLabel(key(18, 0, "1")), "1");
}

}  // namespace
}  // namespace tactora
