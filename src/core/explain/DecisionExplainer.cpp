#include "core/explain/DecisionExplainer.h"

#include <cstdint>
#include <utility>

#include "core/explain/DecisionWords.h"

namespace tactora {

DecisionExplainer::DecisionExplainer(Line line) : line_(std::move(line)) {
    setWantsMouseEvents(true);
}

void DecisionExplainer::touchDropped(const TouchDropNote& note) {
    line_(note.time, "dropped " + std::string(explain::reasonWord(note.reason)) + ' ' +
                         std::to_string(note.fingers));
}

void DecisionExplainer::actionDropped(const ActionDropNote& note) {
    line_(note.time, "action-dropped " + explain::actionWord(note.action) + ' ' +
                         std::string(explain::reasonWord(note.reason)));
}

void DecisionExplainer::mouseEventDecided(const MouseEventNote& note) {
    const std::string sender =
        note.fromMouse || !senderName_ ? std::string() : senderName_(note.sender);
    line_(note.time, explain::mouseEventWords(note, sender));
}

void DecisionExplainer::pressesReleased(const PressesReleasedNote& note) {
    for (std::size_t i = 0; i < note.count && i < note.buttons.size(); ++i) {
        line_(note.time,
              "up-sent button " + std::to_string(static_cast<std::uint32_t>(note.buttons.at(i))));
    }
}

}  // namespace tactora
