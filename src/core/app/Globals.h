#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tactora {

// Written into the user-data field of every event the program posts, so that its own event
// tap lets them pass: the letters "TACTOR" read as a big-endian number.
inline constexpr std::int64_t marker = 0x544143544F52;

// The action catalogue's localisation keys, in index order.
inline constexpr std::array<std::string_view, 15> actionKeys = {
    "action.default", "action.left",    "action.right",   "action.middle",  "action.double",
    "action.copy",    "action.paste",   "action.cut",     "action.undo",    "action.redo",
    "action.back",    "action.forward", "action.mission", "action.desktop", "action.custom"};

// The localised display name of each action, index for index. Empty until
// initializeGlobals() has run; computed once, in the language of the start.
const std::vector<std::string>& choices();

// Sets the process-wide values above that depend on the string table. Called once at the
// start of the entry, after the string table is installed, on the main thread.
void initializeGlobals();

}  // namespace tactora
