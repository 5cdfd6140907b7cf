#include "core/actions/ExtraActionInfo.h"

#include <algorithm>
#include <array>

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

}  // namespace tactora::catalogue
