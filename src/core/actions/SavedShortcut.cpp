#include "core/actions/SavedShortcut.h"

#include <utility>

namespace tactora {

SavedShortcut::SavedShortcut(std::uint16_t key, std::uint64_t modifiers, std::string text)
    : SavedShortcut(Unmasked{}, key, modifiers & allowedFlags, std::move(text)) {}

SavedShortcut::SavedShortcut(Unmasked /*tag*/, std::uint16_t key, std::uint64_t modifiers,
                             std::string text)
    : keyCode(key), flags(modifiers), label(std::move(text)) {}

SavedShortcut SavedShortcut::decoded(std::uint16_t key, std::uint64_t modifiers, std::string text) {
    return {Unmasked{}, key, modifiers, std::move(text)};
}

bool SavedShortcut::isValid() const {
    // Key codes from 128 up are not keys of any keyboard the platform knows.
    if (keyCode >= 128) {
        return false;
    }
    if (label.empty()) {
        return false;
    }
    return (flags & ~allowedFlags) == 0;
}

}  // namespace tactora
