#include "core/moreactions/ExtraActionCatalogue.h"

#include "core/actions/ActionCatalogue.h"
#include "core/actions/ModifierFlags.h"

namespace tactora::catalogue {

namespace {

constexpr std::int64_t keyDownState = 0xA;
constexpr std::int64_t keyUpState = 0xB;

// Virtual key codes (ANSI positions).
constexpr std::uint16_t leftArrow = 123;
constexpr std::uint16_t rightArrow = 124;
constexpr std::uint16_t space = 49;
constexpr std::uint16_t keyD = 2;
constexpr std::uint16_t keyN = 45;
// A real arrow key's event carries these besides its modifiers.
constexpr std::uint64_t arrowFlags = ModifierFlags::numericPad | ModifierFlags::function;

}  // namespace

std::optional<std::int32_t> mediaKey(ExtraAction action) {
    switch (action) {
        case ExtraAction::playPause:
            return mediaKeys::play;
        case ExtraAction::nextTrack:
            return mediaKeys::next;
        case ExtraAction::previousTrack:
            return mediaKeys::previous;
        case ExtraAction::volumeUp:
            return mediaKeys::soundUp;
        case ExtraAction::volumeDown:
            return mediaKeys::soundDown;
        case ExtraAction::mute:
            return mediaKeys::mute;
        default:
            return std::nullopt;
    }
}

SystemDefinedEvent mediaKeyEvent(std::int32_t key, bool down) {
    const std::int64_t state = down ? keyDownState : keyUpState;
    return {
        .subtype = mediaKeys::auxiliaryControlButtons,
        .data1 = (std::int64_t{key} << 16) | (state << 8),
        .modifierFlags = static_cast<std::uint64_t>(state << 8),
        .userData = 0,
    };
}

std::optional<KeyStroke> systemKeyStroke(ExtraAction action) {
    switch (action) {
        case ExtraAction::spaceLeft:
            return KeyStroke{leftArrow, ModifierFlags::control | arrowFlags};
        case ExtraAction::spaceRight:
            return KeyStroke{rightArrow, ModifierFlags::control | arrowFlags};
        case ExtraAction::notificationCenter:
            return KeyStroke{keyN, ModifierFlags::function};
        case ExtraAction::spotlight:
            return KeyStroke{space, ModifierFlags::command};
        case ExtraAction::lookUp:
            return KeyStroke{keyD, ModifierFlags::control | ModifierFlags::command};
        default:
            return std::nullopt;
    }
}

std::optional<std::string_view> dockNotification(ExtraAction action) {
    switch (action) {
        case ExtraAction::appExpose:
            return "com.apple.expose.front.awake";
        case ExtraAction::launchpad:
            return "com.apple.launchpad.toggle";
        default:
            return std::nullopt;
    }
}

std::optional<std::uint64_t> clickFlags(ExtraAction action) {
    return pressFlags(action::index(action));
}

std::optional<ProcessRequest> process(ExtraAction action, const std::string& value) {
    switch (action) {
        case ExtraAction::runShortcut:
            return ProcessRequest{
                .path = "/usr/bin/shortcuts",
                .arguments = {"run", value},
                .timeLimit = shortcutTimeLimit,
                .captureOutput = false,
            };
        case ExtraAction::screenshotArea:
            // Interactive: it lasts as long as the user takes to select, or to press Escape.
            return ProcessRequest{
                .path = "/usr/sbin/screencapture",
                .arguments = {"-i", "-c"},
                .timeLimit = std::nullopt,
                .captureOutput = false,
            };
        default:
            return std::nullopt;
    }
}

ProcessRequest shortcutList() {
    return {
        .path = "/usr/bin/shortcuts",
        .arguments = {"list"},
        .timeLimit = shortcutListTimeLimit,
        .captureOutput = true,
    };
}

}  // namespace tactora::catalogue
