#pragma once

#include <string>
#include <string_view>

#include "core/actions/ActionIndex.h"
#include "core/app/ControllerEvents.h"

// The words in which the replay writes down what the controller decided: one word per reason, a
// key per action, and a mouse event's fate. Plain lowercase words rather than localised texts,
// so that replays diff across machines and languages. Pure; any thread.
namespace tactora::explain {

// "too-long", "click-after", "gestures-off", ...
std::string_view reasonWord(DropReason reason);

// An action by the key of its name in the catalogue ("action.copy"); its number when it has none.
std::string actionWord(ActionIndex action);

// "passed", "swallowed", or "rewritten button B".
std::string fateWords(const MouseEventNote& note);

// The event as a trace writes it ("left-down 0 mouse"), then its fate. `sender`, when not
// empty, names a sender that is not the Magic Mouse instead of "other" ("@7").
std::string mouseEventWords(const MouseEventNote& note, std::string_view sender = {});

}  // namespace tactora::explain
