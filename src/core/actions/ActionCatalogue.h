#pragma once

#include <cstdint>
#include <optional>

#include "core/actions/ActionIndex.h"
#include "core/actions/ButtonClicks.h"
#include "core/actions/KeyStroke.h"
#include "core/platform/MouseButton.h"

// How the entries of the action catalogue are carried out. Pure lookups.
namespace tactora::catalogue {

// The clicks of the left, right, middle and double click actions; nothing for the others.
std::optional<ButtonClicks> buttonClicks(ActionIndex action);

// The key press of copy, paste, cut, undo, redo, back and forward; nothing for the others.
std::optional<KeyStroke> keyStroke(ActionIndex action);

// The button that a physical press is turned into when its click slot holds `action`: left,
// right or centre for the three single-click actions; nothing for every other action, whose
// press is swallowed and performed on release instead.
std::optional<MouseButton> pressTarget(ActionIndex action);

// The modifier flags a press turned into a ⌘-, ⌥-, ⇧- or ⌃-click carries from its down event
// through its drags to its up event; nothing for every other action.
std::optional<std::uint64_t> pressFlags(ActionIndex action);

// The Dock notification an action sends: true for Show Desktop, false for Mission Control,
// nothing for the others.
std::optional<bool> dockShowsDesktop(ActionIndex action);

}  // namespace tactora::catalogue
