#include "core/shortcuts/ShortcutLabel.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/actions/ModifierFlags.h"
#include "core/actions/SavedShortcut.h"
#include "core/localization/Localizer.h"
#include "core/text/TextHandling.h"

namespace tactora {

namespace {

struct Glyph {
    std::uint64_t flag;
    std::string_view text;
};

constexpr std::array<Glyph, 4> modifierGlyphs = {{
    {ModifierFlags::control, "⌃"},
    {ModifierFlags::option, "⌥"},
    {ModifierFlags::shift, "⇧"},
    {ModifierFlags::command, "⌘"},
}};

// Key codes of F1 to F20, in order.
constexpr std::array<std::uint16_t, 20> functionKeys = {
    122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 103, 111, 105, 107, 113, 106, 64, 79, 80, 90};

struct NamedKey {
    std::uint16_t keyCode;
    std::string_view text;
    bool localised;  // `text` is a localisation key
};

constexpr std::array<NamedKey, 15> namedKeys = {{
    {49, "key.space", true},
    {36, "key.return", true},
    {76, "key.return", true},  // the keypad's Enter reads as Return
    {48, "key.tab", true},
    {51, "key.delete", true},
    {53, "key.escape", true},
    {117, "key.forwarddelete", true},
    {123, "←", false},
    {124, "→", false},
    {125, "↓", false},
    {126, "↑", false},
    {115, "↖", false},
    {119, "↘", false},
    {116, "⇞", false},
    {121, "⇟", false},
}};

std::string modifierPrefix(std::uint64_t flags) {
    std::string prefix;
    for (const Glyph& glyph : modifierGlyphs) {
        if ((flags & SavedShortcut::allowedFlags & glyph.flag) != 0) {
            prefix += glyph.text;
        }
    }
    return prefix;
}

std::optional<std::string> functionKeyName(std::uint16_t keyCode) {
    const auto* found = std::find(functionKeys.begin(), functionKeys.end(), keyCode);
    if (found == functionKeys.end()) {
        return std::nullopt;
    }
    return "F" + std::to_string(found - functionKeys.begin() + 1);
}

std::optional<std::string> namedKeyName(std::uint16_t keyCode) {
    const auto* found =
        std::find_if(namedKeys.begin(), namedKeys.end(),
                     [keyCode](const NamedKey& key) { return key.keyCode == keyCode; });
    if (found == namedKeys.end()) {
        return std::nullopt;
    }
    return found->localised ? L(found->text) : std::string(found->text);
}

std::string keyName(const KeyPress& press) {
    if (auto name = functionKeyName(press.keyCode)) {
        return *name;
    }
    if (auto name = namedKeyName(press.keyCode)) {
        return *name;
    }
    if (press.charactersIgnoringModifiers) {
        return textHandling().upperCased(*press.charactersIgnoringModifiers);
    }
    return "#" + std::to_string(press.keyCode);
}

}  // namespace

std::string shortcutLabel(const KeyPress& press) {
    return modifierPrefix(press.modifierFlags) + keyName(press);
}

}  // namespace tactora
