#include "core/explain/DecisionWords.h"

#include <cstddef>
#include <cstdint>
#include <optional>

#include "core/actions/ExtraActionInfo.h"
#include "core/app/Globals.h"
#include "core/trace/TraceFormat.h"

namespace tactora::explain {

std::string_view reasonWord(DropReason reason) {
    switch (reason) {
        case DropReason::tooLong:
            return "too-long";
        case DropReason::tooShort:
            return "too-short";
        case DropReason::moved:
            return "moved";
        case DropReason::tooManyFingers:
            return "too-many-fingers";
        case DropReason::clickDuring:
            return "click-during";
        case DropReason::clickAfter:
            return "click-after";
        case DropReason::profileChanged:
            return "profile-changed";
        case DropReason::applicationChanged:
            return "application-changed";
        case DropReason::switchChanged:
            return "switch-changed";
        case DropReason::gesturesOff:
            return "gestures-off";
        case DropReason::largeContact:
            return "palm-or-thumb";
        case DropReason::edgeBand:
            return "edge-band";
        case DropReason::restingContact:
            return "resting-contact";
        case DropReason::afterActivity:
            return "after-activity";
        case DropReason::duringPress:
            return "during-press";
        case DropReason::drumming:
            return "drumming";
    }
    return "unknown";
}

std::string actionWord(ActionIndex action) {
    if (const std::optional<ExtraAction> extra = action::extra(action)) {
        return std::string(catalogue::info(*extra).textKey);
    }
    if (action < 0 || static_cast<std::size_t>(action) >= actionKeys.size()) {
        return std::to_string(action);
    }
    return std::string(actionKeys[static_cast<std::size_t>(action)]);
}

std::string fateWords(const MouseEventNote& note) {
    switch (note.fate) {
        case MouseEventFate::passed:
            return "passed";
        case MouseEventFate::swallowed:
            return "swallowed";
        case MouseEventFate::rewritten:
            return "rewritten button " +
                   std::to_string(static_cast<std::uint32_t>(note.rewrittenTo));
    }
    return "unknown";
}

std::string mouseEventWords(const MouseEventNote& note, std::string_view sender) {
    const std::string_view type = trace::mouseEventWord(note.type);
    std::string words = type.empty() ? "event-" + std::to_string(note.type) : std::string(type);
    if (note.type != event::scrollWheel) {
        words += ' ' + std::to_string(note.button);
    }
    if (note.fromMouse) {
        words += " mouse ";
    } else {
        words += ' ';
        words += sender.empty() ? std::string_view("other") : sender;
        words += ' ';
    }
    return words + fateWords(note);
}

}  // namespace tactora::explain
