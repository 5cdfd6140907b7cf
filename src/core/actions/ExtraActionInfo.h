#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/actions/ExtraAction.h"

// How the further actions are named and stored. Pure lookups.
namespace tactora::catalogue {

struct ExtraActionInfo {
    ExtraAction action = ExtraAction::openApplication;
    std::string_view storedKey;  // its name in a stored profile; never changes
    std::string_view textKey;    // the localisation key of its display name
    ExtraActionGroup group = ExtraActionGroup::open;
    ActionValueKind value = ActionValueKind::none;
};

// Every further action, in index order.
std::span<const ExtraActionInfo> extraActions();
const ExtraActionInfo& info(ExtraAction action);
// The further action stored under `key`; nothing for a key this version does not know.
std::optional<ExtraAction> extraFromStoredKey(std::string_view key);

}  // namespace tactora::catalogue
