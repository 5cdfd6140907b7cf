#include "core/actions/ActionCatalogue.h"

#include <algorithm>
#include <array>

#include "core/actions/ExtraAction.h"
#include "core/actions/ModifierFlags.h"

namespace tactora::catalogue {

namespace {

struct KeyAction {
    ActionIndex action = action::defaultAction;
    KeyStroke stroke;
};

constexpr std::uint64_t command = ModifierFlags::command;

// Key codes are ANSI layout positions: 8 C, 9 V, 7 X, 6 Z, 33 [, 30 ].
constexpr std::array<KeyAction, 7> keyActions = {{
    {action::copy, {8, command}},
    {action::paste, {9, command}},
    {action::cut, {7, command}},
    {action::undo, {6, command}},
    {action::redo, {6, command | ModifierFlags::shift}},
    {action::back, {33, command}},
    {action::forward, {30, command}},
}};

}  // namespace

std::optional<ButtonClicks> buttonClicks(ActionIndex action) {
    switch (action) {
        case action::left:
            return ButtonClicks{MouseButton::left, 1};
        case action::right:
            return ButtonClicks{MouseButton::right, 1};
        case action::middle:
            return ButtonClicks{MouseButton::centre, 1};
        case action::doubleClick:
            return ButtonClicks{MouseButton::left, 2};
        default:
            return std::nullopt;
    }
}

std::optional<KeyStroke> keyStroke(ActionIndex action) {
    const auto* found =
        std::find_if(keyActions.begin(), keyActions.end(),
                     [action](const KeyAction& entry) { return entry.action == action; });
    if (found == keyActions.end()) {
        return std::nullopt;
    }
    return found->stroke;
}

std::optional<MouseButton> pressTarget(ActionIndex action) {
    if (action == action::doubleClick) {
        return std::nullopt;
    }
    if (pressFlags(action)) {
        return MouseButton::left;
    }
    if (auto clicks = buttonClicks(action)) {
        return clicks->button;
    }
    return std::nullopt;
}

std::optional<std::uint64_t> pressFlags(ActionIndex action) {
    const std::optional<ExtraAction> extra = action::extra(action);
    if (!extra) {
        return std::nullopt;
    }
    switch (*extra) {
        case ExtraAction::commandClick:
            return ModifierFlags::command;
        case ExtraAction::optionClick:
            return ModifierFlags::option;
        case ExtraAction::shiftClick:
            return ModifierFlags::shift;
        case ExtraAction::controlClick:
            return ModifierFlags::control;
        default:
            return std::nullopt;
    }
}

std::optional<bool> dockShowsDesktop(ActionIndex action) {
    switch (action) {
        case action::showDesktop:
            return true;
        case action::missionControl:
            return false;
        default:
            return std::nullopt;
    }
}

}  // namespace tactora::catalogue
