#pragma once

#include <cstdint>
#include <string>

#include "core/actions/ModifierFlags.h"

namespace tactora {

// A recorded key combination: a virtual key code, its modifiers and the label shown for it.
// A plain value; every member may be called from any thread.
struct SavedShortcut {
    // Command, Control, Option, Shift and Function; nothing else survives construction.
    static constexpr std::uint64_t allowedFlags = ModifierFlags::command | ModifierFlags::control |
                                                  ModifierFlags::option | ModifierFlags::shift |
                                                  ModifierFlags::function;

    // Stores `key` and `text` as given and keeps only the allowed bits of `modifiers`.
    SavedShortcut(std::uint16_t key, std::uint64_t modifiers, std::string text);

    // A shortcut exactly as it was stored, flags unmasked; only the JSON decoder needs this, so
    // that sanitising can tell a damaged record from a good one.
    static SavedShortcut decoded(std::uint16_t key, std::uint64_t modifiers, std::string text);

    // Key code below 128, a non-empty label and no modifier outside allowedFlags.
    bool isValid() const;

    std::uint16_t keyCode = 0;
    std::uint64_t flags = 0;
    std::string label;

    bool operator==(const SavedShortcut&) const = default;

  private:
    struct Unmasked {};
    SavedShortcut(Unmasked /*tag*/, std::uint16_t key, std::uint64_t modifiers, std::string text);
};

}  // namespace tactora
