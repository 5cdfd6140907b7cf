#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

#include "core/explain/DecisionWords.h"

namespace tactora {
namespace {

TEST(DecisionWordsTest, EveryReasonHasAWordOfItsOwn) {
    std::set<std::string_view> words;
    for (const DropReason reason :
         {DropReason::tooLong, DropReason::tooShort, DropReason::moved, DropReason::tooManyFingers,
          DropReason::clickDuring, DropReason::clickAfter, DropReason::profileChanged,
          DropReason::applicationChanged, DropReason::switchChanged, DropReason::gesturesOff,
          DropReason::largeContact, DropReason::edgeBand, DropReason::restingContact,
          DropReason::afterActivity, DropReason::duringPress, DropReason::drumming}) {
        const std::string_view word = explain::reasonWord(reason);
        EXPECT_NE(word, "unknown");
        EXPECT_EQ(word.find(' '), std::string_view::npos) << word;
        words.insert(word);
    }
    EXPECT_EQ(words.size(), 16U);
    EXPECT_EQ(explain::reasonWord(DropReason::clickAfter), "click-after");
    EXPECT_EQ(explain::reasonWord(DropReason::largeContact), "palm-or-thumb");
}

TEST(DecisionWordsTest, ActionsAreNamedByTheirKeysOrNumbers) {
    EXPECT_EQ(explain::actionWord(0), "action.default");
    EXPECT_EQ(explain::actionWord(5), "action.copy");
    EXPECT_EQ(explain::actionWord(-3), "-3");
}

TEST(DecisionWordsTest, AMouseEventIsWrittenAsATraceWritesItThenItsFate) {
    MouseEventNote note{.type = event::rightMouseDown, .button = 1, .fromMouse = true};
    EXPECT_EQ(explain::mouseEventWords(note), "right-down 1 mouse passed");
    note.fate = MouseEventFate::rewritten;
    note.rewrittenTo = MouseButton::centre;
    EXPECT_EQ(explain::mouseEventWords(note), "right-down 1 mouse rewritten button 2");
    note.fate = MouseEventFate::swallowed;
    note.fromMouse = false;
    EXPECT_EQ(explain::mouseEventWords(note), "right-down 1 other swallowed");
    EXPECT_EQ(explain::mouseEventWords({.type = event::scrollWheel}), "scroll other passed");
    EXPECT_EQ(explain::mouseEventWords({.type = 25, .button = 3}), "event-25 3 other passed");
}

TEST(DecisionWordsTest, ASenderNamedBesideTheMouseReplacesOtherButNeverTheMouse) {
    MouseEventNote note{.type = event::leftMouseDown, .button = 0, .fromMouse = false};
    EXPECT_EQ(explain::mouseEventWords(note, "@7"), "left-down 0 @7 passed");
    EXPECT_EQ(explain::mouseEventWords(note, ""), "left-down 0 other passed");
    note.fromMouse = true;
    EXPECT_EQ(explain::mouseEventWords(note, "@7"), "left-down 0 mouse passed");
}

}  // namespace
}  // namespace tactora
