#include "core/shortcuts/ShortcutRecorder.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

class Dialog final : public RecordingDialog {
  public:
    void setLabelText(const std::string& text) override { label = text; }
    void setSaveEnabled(bool enabled) override { saveEnabled = enabled; }

    std::string label = "waiting";
    bool saveEnabled = false;
};

KeyPress key(std::uint16_t keyCode, std::uint64_t flags = 0, std::string characters = "x") {
    return {.keyCode = keyCode,
            .modifierFlags = flags,
            .isRepeat = false,
            .charactersIgnoringModifiers = std::move(characters),
            .inDialogWindow = true};
}

TEST(ShortcutRecorderTest, ModifierKeysAloneAreSwallowedUnrecorded) {
    ShortcutRecorder recorder;
    Dialog dialog;
    for (std::uint16_t code = 54; code <= 63; ++code) {
        EXPECT_EQ(recorder.handle(key(code, 0x20000), dialog), EventDisposition::swallow);
    }
    EXPECT_FALSE(recorder.captured().has_value());
    EXPECT_FALSE(dialog.saveEnabled);
    EXPECT_EQ(dialog.label, "waiting");
}

TEST(ShortcutRecorderTest, KeysAroundTheModifierRangeAreRecorded) {
    ShortcutRecorder recorder;
    Dialog dialog;
    EXPECT_EQ(recorder.handle(key(53), dialog), EventDisposition::swallow);
    EXPECT_EQ(recorder.captured()->keyCode, 53);
    EXPECT_EQ(recorder.handle(key(64), dialog), EventDisposition::swallow);
    EXPECT_EQ(recorder.captured()->keyCode, 64);
}

TEST(ShortcutRecorderTest, ALaterKeyReplacesTheEarlierOneAndKeepsOnlyAllowedFlags) {
    ShortcutRecorder recorder;
    Dialog dialog;
    recorder.handle(key(0, 0x100000, "a"), dialog);
    recorder.handle(key(1, 0x100000 | 0x10000 | 0x100, "s"), dialog);

    EXPECT_EQ(recorder.captured(), SavedShortcut(1, 0x100000, "⌘S"));
    EXPECT_EQ(dialog.label, "⌘S");
    EXPECT_TRUE(dialog.saveEnabled);
}

TEST(ShortcutRecorderTest, KeyCode127IsStillStorable) {
    ShortcutRecorder recorder;
    Dialog dialog;
    EXPECT_EQ(recorder.handle(key(127), dialog), EventDisposition::swallow);
    EXPECT_EQ(recorder.handle(key(128), dialog), EventDisposition::pass);
    EXPECT_EQ(recorder.captured()->keyCode, 127);
}

}  // namespace
}  // namespace tactora
