#pragma once

#include <cstddef>
#include <string>

namespace tactora {

// What is wrong with a trace that can't be read.
enum class TraceProblem {
    header,         // the first line does not name the trace format and a version
    version,        // a version newer than this program reads
    time,           // the time stamp is missing or is not a number of seconds
    timeBack,       // the time stamp is earlier than the one before
    event,          // the event word is missing or unknown
    contact,        // a contact is not <id>:<x>,<y>
    contactID,      // a contact's id lies outside the signed 64-bit range
    crowded,        // a frame holds more contacts than TraceFrame::mostContacts
    button,         // the button number is missing or not a number
    source,         // the sender is missing or neither "mouse" nor "other"
    profile,        // the profile id is missing or not a UUID
    process,        // the process id is missing or not a number
    onOff,          // the switch's state is missing or neither "on" nor "off"
    extra,          // more words than the event takes
    device,         // a device line lacks its id, a known kind or its name
    unknownDevice,  // "@<id>" names no device declared on an earlier line, or is not a number
};

// Where reading stopped, and why. Lines count from 1.
struct TraceError {
    std::size_t line = 0;
    TraceProblem problem = TraceProblem::header;

    bool operator==(const TraceError&) const = default;
};

// The localised sentence for `error`, naming its line.
std::string describeTraceError(const TraceError& error);

}  // namespace tactora
