#pragma once

#include <string>

#include "core/actions/ExtraAction.h"

namespace tactora {

// An extra action held by a gesture slot, with what it opens or runs: a bundle identifier, a
// path, an address or a Shortcut's name; empty for the actions that need nothing. A value that
// no longer names anything is kept as it is: the window shows it as missing.
struct SlotExtra {
    ExtraAction action = ExtraAction::openApplication;
    std::string value;

    bool operator==(const SlotExtra&) const = default;
};

}  // namespace tactora
