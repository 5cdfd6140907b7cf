#pragma once

#include <string>

#include "core/platform/KeyPress.h"

namespace tactora {

// The short text that stands for a key press: the glyphs of its modifiers, always in the
// order ⌃ ⌥ ⇧ ⌘ (Function has none), followed by the key's name: "F1"..."F20" for the
// function keys, the localised name or arrow glyph of the named keys, otherwise the characters
// the key types in upper case (the installed text handling's locale-independent rules), or "#"
// and the key code when it types none. Main thread only
// (named keys are localised).
std::string shortcutLabel(const KeyPress& press);

}  // namespace tactora
