#include <gtest/gtest.h>

#include "app/ControllerHarness.h"

namespace tactora::testing {
namespace {

constexpr std::uint16_t shiftKey = 56;
constexpr std::uint16_t keyK = 40;

KeyPress press(std::uint16_t keyCode, std::uint64_t flags, std::optional<std::string> characters) {
    return {.keyCode = keyCode,
            .modifierFlags = flags,
            .isRepeat = false,
            .charactersIgnoringModifiers = std::move(characters),
            .inDialogWindow = true};
}

class ControllerRecordingTest : public ::testing::Test {
  protected:
    void SetUp() override { h.launchAndSwitchOn(); }

    const std::optional<SavedShortcut>& stored(std::size_t slot) {
        return h.c().profiles().current().shortcuts.at(slot);
    }

    ControllerHarness h;
};

TEST_F(ControllerRecordingTest, DialogShowsItsTextsAndWaits) {
    h.dialogs.save = false;
    h.c().recordShortcut(3);

    ASSERT_TRUE(h.dialogs.recordingTexts.has_value());
    EXPECT_EQ(*h.dialogs.recordingTexts,
              (RecordingDialogTexts{"record.title", "record.help", "profile.save", "cancel",
                                    "record.wait"}));
    EXPECT_EQ(h.dialogs.dialog.label, "record.wait");
}

TEST_F(ControllerRecordingTest, ShiftAloneRecordsNothingThenShiftCommandKIsRecordedAndSaved) {
    h.dialogs.keys = {press(shiftKey, 0x20000, "")};
    h.dialogs.save = true;
    h.c().beginRecording(2);

    EXPECT_EQ(h.dialogs.dispositions, (std::vector<EventDisposition>{EventDisposition::swallow}));
    EXPECT_FALSE(h.dialogs.dialog.saveEnabled);
    EXPECT_FALSE(stored(2).has_value());
    EXPECT_EQ(h.c().mapping().at(2), action::defaultAction);

    h.dialogs.keys = {press(shiftKey, 0x20000, ""), press(keyK, 0x120000, "k")};
    h.c().beginRecording(2);

    EXPECT_TRUE(h.dialogs.dialog.saveEnabled);
    EXPECT_EQ(h.dialogs.dialog.label, "⇧⌘K");
    EXPECT_EQ(stored(2), SavedShortcut(keyK, 0x120000, "⇧⌘K"));
    EXPECT_EQ(h.c().mapping().at(2), action::custom);
}

TEST_F(ControllerRecordingTest, ModifiersPressedInAnyOrderAreLabelledInTheFixedOrder) {
    constexpr std::uint16_t commandKey = 55;
    constexpr std::uint16_t optionKey = 58;
    constexpr std::uint16_t controlKey = 59;
    constexpr std::uint16_t keyF5 = 96;
    // Command first, Control last: the reverse of the order the label shows them in.
    h.dialogs.keys = {press(commandKey, 0x100000, ""), press(shiftKey, 0x120000, ""),
                      press(optionKey, 0x1A0000, ""), press(controlKey, 0x1E0000, ""),
                      press(keyF5, 0x1E0000, "\u0010")};
    h.c().beginRecording(1);

    EXPECT_EQ(h.dialogs.dialog.label, "⌃⌥⇧⌘F5");
    EXPECT_EQ(stored(1), SavedShortcut(keyF5, 0x1E0000, "⌃⌥⇧⌘F5"));
}

TEST_F(ControllerRecordingTest, ReturnAndEscapeAreRecordedInsteadOfClosingTheDialog) {
    h.dialogs.keys = {press(36, 0, "\r")};
    h.c().beginRecording(0);
    EXPECT_EQ(stored(0), SavedShortcut(36, 0, "key.return"));
    EXPECT_EQ(h.dialogs.dispositions, (std::vector<EventDisposition>{EventDisposition::swallow}));

    h.dialogs.keys = {press(53, 0, "\x1b")};
    h.c().beginRecording(1);
    EXPECT_EQ(stored(1), SavedShortcut(53, 0, "key.escape"));
    EXPECT_EQ(h.dialogs.dispositions, (std::vector<EventDisposition>{EventDisposition::swallow}));
}

TEST_F(ControllerRecordingTest, HeldKeyIsRecordedOnceAndItsAutoRepeatsPassUnrecorded) {
    KeyPress held = press(keyK, 0x100000, "k");
    KeyPress repeat = held;
    repeat.isRepeat = true;
    KeyPress otherRepeat = press(0, 0, "a");
    otherRepeat.isRepeat = true;
    h.dialogs.keys = {held, repeat, otherRepeat};
    h.c().beginRecording(0);

    EXPECT_EQ(h.dialogs.dispositions,
              (std::vector<EventDisposition>{EventDisposition::swallow, EventDisposition::pass,
                                             EventDisposition::pass}));
    EXPECT_EQ(stored(0), SavedShortcut(keyK, 0x100000, "⌘K"));
}

TEST_F(ControllerRecordingTest, KeysOfOtherWindowsPass) {
    KeyPress elsewhere = press(keyK, 0x100000, "k");
    elsewhere.inDialogWindow = false;
    h.dialogs.keys = {elsewhere};
    h.c().beginRecording(0);

    EXPECT_EQ(h.dialogs.dispositions, (std::vector<EventDisposition>{EventDisposition::pass}));
    EXPECT_FALSE(stored(0).has_value());
}

TEST_F(ControllerRecordingTest, KeyCodesFromOneHundredTwentyEightPassAndSaveStaysDisabled) {
    h.dialogs.keys = {press(128, 0, "x"), press(200, 0, std::nullopt)};
    h.c().beginRecording(0);

    EXPECT_EQ(h.dialogs.dispositions,
              (std::vector<EventDisposition>{EventDisposition::pass, EventDisposition::pass}));
    EXPECT_FALSE(h.dialogs.dialog.saveEnabled);
    EXPECT_FALSE(stored(0).has_value());
}

TEST_F(ControllerRecordingTest, CancelKeepsTheSlotAsItWas) {
    h.c().profiles().setShortcut(SavedShortcut(8, 0x100000, "⌘C"), 0);
    h.c().profiles().setAction(action::paste, 0);
    h.dialogs.keys = {press(keyK, 0x100000, "k")};
    h.dialogs.save = false;
    h.c().beginRecording(0);

    EXPECT_EQ(stored(0), SavedShortcut(8, 0x100000, "⌘C"));
    EXPECT_EQ(h.c().mapping().at(0), action::paste);
}

TEST_F(ControllerRecordingTest, AfterEitherButtonRecordingEndsRecogniserResetsAndControlsRefresh) {
    for (const bool save : {true, false}) {
        h.dialogs.keys = {press(keyK, 0x100000, "k")};
        h.dialogs.save = save;
        bool recordingWhileOpen = false;
        h.dialogs.whileOpen = [&] {
            recordingWhileOpen = h.c().state().recording;
            h.rest(2);
        };
        h.view.recordButtons.fill(std::nullopt);
        h.c().beginRecording(4);

        EXPECT_TRUE(recordingWhileOpen);
        EXPECT_FALSE(h.c().state().recording);
        EXPECT_EQ(h.c().state().gesture, GestureState());
        ASSERT_TRUE(h.view.recordButtons.at(4).has_value());
        EXPECT_EQ(h.view.recordButtons.at(4)->title, "⌘K");
        EXPECT_TRUE(h.view.recordButtons.at(4)->enabled);
    }
}

TEST_F(ControllerRecordingTest, TouchBegunBeforeTheDialogDoesNotCompleteWhileItIsOpen) {
    h.rest(1);
    h.dialogs.save = false;
    std::string gestureWhileOpen;
    h.dialogs.whileOpen = [&] {
        h.queue.advance(0.1);
        h.frame(0);
        gestureWhileOpen = h.c().state().lastGesture;
    };
    h.c().beginRecording(0);

    EXPECT_EQ(gestureWhileOpen, "—");
}

TEST_F(ControllerRecordingTest, BeginningCancelsPendingActionsAndReleasesHeldPresses) {
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    const std::int64_t before = h.c().state().actionGeneration;
    h.dialogs.save = false;
    std::size_t heldWhileOpen = 1;
    h.dialogs.whileOpen = [&] { heldWhileOpen = h.c().state().presses.size(); };
    h.c().beginRecording(0);

    EXPECT_GT(h.c().state().actionGeneration, before);
    EXPECT_EQ(heldWhileOpen, 0U);
    EXPECT_EQ(h.poster.mouseEvents().size(), 1U);
}

}  // namespace
}  // namespace tactora::testing
