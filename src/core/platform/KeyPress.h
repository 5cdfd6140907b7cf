#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tactora {

// One key-down event as the recording dialog's key monitor sees it.
struct KeyPress {
    std::uint16_t keyCode = 0;        // virtual key code
    std::uint64_t modifierFlags = 0;  // in the layout of ModifierFlags, unmasked
    bool isRepeat = false;            // an auto-repeat of a held key
    // The characters the key yields ignoring modifiers, as UTF-8; nothing when the event has
    // none at all (as opposed to an empty text).
    std::optional<std::string> charactersIgnoringModifiers;
    bool inDialogWindow = true;  // the event belongs to the recording dialog's window

    bool operator==(const KeyPress&) const = default;
};

}  // namespace tactora
