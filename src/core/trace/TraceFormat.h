#pragma once

#include <string>
#include <string_view>

#include "core/trace/TraceLine.h"

// The trace format: plain text, one line per event, UTF-8, lines ending in "\n".
//
//   tactora-trace 1                          the first line: the format's name and version
//   # anything                               a comment; comments and blank lines are skipped
//   <t> frame <id>:<x>,<y> <id>:<x>,<y> ...  a contact frame; "<t> frame" alone: all lifted
//   <t> left-down <button> mouse|other       a mouse event the event tap saw, with its button
//   <t> left-drag | left-up | right-down | right-drag | right-up   (likewise)
//   <t> scroll mouse|other                   a scroll event
//   <t> profile <uuid>                       the user selected a profile
//   <t> front <pid> <bundle-id>|-            another application came to the front
//   <t> front none                           no application is in front
//   <t> gestures on|off                      gestures were switched on or off
//   <t> active on|off                        this application became active or stopped being so
//
// <t> is seconds of system uptime, never earlier than the line before. Words are separated by
// one or more spaces. Numbers are written so that they read back exactly (see TraceNumbers.h).
// A reader accepts every version up to its own; later versions add event words, never change
// the meaning of existing ones.
namespace tactora::trace {

inline constexpr std::string_view formatName = "tactora-trace";
inline constexpr int formatVersion = 1;

// "tactora-trace 1".
std::string header();

// One event's line, without the line break. Pure; any thread.
std::string formatLine(const TraceLine& line);

// The word naming a mouse event's type ("left-down", "scroll", ...), or nothing for a type
// the event tap does not listen to.
std::string_view mouseEventWord(EventType type);

}  // namespace tactora::trace
