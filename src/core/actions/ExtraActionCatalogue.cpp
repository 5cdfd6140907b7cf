#include "core/actions/ExtraActionCatalogue.h"

#include <algorithm>
#include <array>

#include "core/profiles/ModifierFlags.h"
#include "core/support/Fatal.h"

namespace tactora::catalogue {

namespace {

using Group = ExtraActionGroup;
using Value = ActionValueKind;

constexpr std::array<ExtraActionInfo, action::extraCount> table = {{
    {ExtraAction::openApplication, "openApplication", "action.open.app", Group::open,
     Value::application},
    {ExtraAction::openFile, "openFile", "action.open.file", Group::open, Value::file},
    {ExtraAction::openAddress, "openAddress", "action.open.url", Group::open, Value::address},
    {ExtraAction::runShortcut, "runShortcut", "action.shortcut.run", Group::open, Value::shortcut},
    {ExtraAction::playPause, "playPause", "action.media.play", Group::media, Value::none},
    {ExtraAction::nextTrack, "nextTrack", "action.media.next", Group::media, Value::none},
    {ExtraAction::previousTrack, "previousTrack", "action.media.previous", Group::media,
     Value::none},
    {ExtraAction::volumeUp, "volumeUp", "action.volume.up", Group::media, Value::none},
    {ExtraAction::volumeDown, "volumeDown", "action.volume.down", Group::media, Value::none},
    {ExtraAction::mute, "mute", "action.volume.mute", Group::media, Value::none},
    {ExtraAction::spaceLeft, "spaceLeft", "action.space.left", Group::system, Value::none},
    {ExtraAction::spaceRight, "spaceRight", "action.space.right", Group::system, Value::none},
    {ExtraAction::appExpose, "appExpose", "action.app.expose", Group::system, Value::none},
    {ExtraAction::launchpad, "launchpad", "action.launchpad", Group::system, Value::none},
    {ExtraAction::notificationCenter, "notificationCenter", "action.notifications", Group::system,
     Value::none},
    {ExtraAction::spotlight, "spotlight", "action.spotlight", Group::system, Value::none},
    {ExtraAction::lookUp, "lookUp", "action.lookup", Group::system, Value::none},
    {ExtraAction::screenshotArea, "screenshotArea", "action.screenshot", Group::system,
     Value::none},
    {ExtraAction::commandClick, "commandClick", "action.click.command", Group::modifierClick,
     Value::none},
    {ExtraAction::optionClick, "optionClick", "action.click.option", Group::modifierClick,
     Value::none},
    {ExtraAction::shiftClick, "shiftClick", "action.click.shift", Group::modifierClick,
     Value::none},
    {ExtraAction::controlClick, "controlClick", "action.click.control", Group::modifierClick,
     Value::none},
}};

constexpr bool tableInOrder() {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (static_cast<std::size_t>(table.at(i).action) != i) {
            return false;
        }
    }
    return true;
}
static_assert(tableInOrder(), "the extra actions are listed in index order");

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

std::span<const ExtraActionInfo> extraActions() {
    return table;
}

const ExtraActionInfo& info(ExtraAction action) {
    const auto position = static_cast<std::size_t>(action);
    if (position >= table.size()) {
        fatalError("Unknown extra action");
    }
    return table.at(position);
}

std::optional<ExtraAction> extraFromStoredKey(std::string_view key) {
    const auto* found =
        std::find_if(table.begin(), table.end(),
                     [key](const ExtraActionInfo& entry) { return entry.storedKey == key; });
    if (found == table.end()) {
        return std::nullopt;
    }
    return found->action;
}

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
    switch (action) {
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
