#pragma once

#include <string>
#include <string_view>

#include "core/trace/TraceLine.h"

// The trace format: plain text, one line per event, UTF-8, lines ending in "\n".
//
//   tactora-trace 3                          the first line: the format's name and version
//   # anything                               a comment; comments and blank lines are skipped
//   <t> device <id> <kind> <name>            a touch device that later lines name as @<id>
//   <t> frame [@<id>] <contact> <contact>... a contact frame; "<t> frame" alone: all lifted
//   <t> left-down <button> mouse|other|@<id> a mouse event the event tap saw, with its button
//   <t> left-drag | left-up | right-down | right-drag | right-up   (likewise)
//   <t> scroll mouse|other|@<id>             a scroll event
//   <t> profile <uuid>                       the user selected a profile
//   <t> front <pid> <bundle-id>|-            another application came to the front
//   <t> front none                           no application is in front
//   <t> gestures on|off                      gestures were switched on or off
//   <t> active on|off                        this application became active or stopped being so
//   <t> use @<id> on|off                     the user chose to use a device for gestures or not
//
// <t> is seconds of system uptime, never earlier than the line before. Words are separated by
// one or more spaces. Numbers are written so that they read back exactly (see TraceNumbers.h).
// A contact is <id>:<x>,<y>, or <id>:<x>,<y>/<size>,<angle>,<major>,<minor> when its shape
// was recorded (the sensor's 32-bit values, written like positions). A device's <id> is an
// unsigned 64-bit number, its <kind> one of magic-mouse, magic-trackpad, built-in-trackpad and
// other, its <name> the rest of the line ("-" for none); "@<id>" must name a device declared on
// an earlier line. Without "@<id>" a frame or a button event is the Magic Mouse's, and
// "mouse" means the Magic Mouse: all of version 1 reads so. A device a trace names is in use
// for gestures until a "use" line says otherwise; "use" lines came with version 3, and a trace
// of an earlier version that has one is read as having an unknown event there.
// A reader accepts every version up to its own; later versions add event words, never change
// the meaning of existing ones.
namespace tactora::trace {

inline constexpr std::string_view formatName = "tactora-trace";
inline constexpr int formatVersion = 3;

// "tactora-trace 3".
std::string header();

// One event's line, without the line break. Pure; any thread.
std::string formatLine(const TraceLine& line);

// The word naming a device's kind ("magic-mouse", ...).
std::string_view deviceKindWord(TraceDeviceKind kind);

// The word naming a mouse event's type ("left-down", "scroll", ...), or nothing for a type
// the event tap does not listen to.
std::string_view mouseEventWord(EventType type);

}  // namespace tactora::trace
