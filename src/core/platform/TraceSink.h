#pragma once

#include <optional>
#include <string>
#include <system_error>

namespace tactora {

// Why no trace file could be begun.
struct TraceSinkFailure {
    // What could not be made: the folder or the file. Empty when the system names no folder
    // for the user's logs at all.
    std::string path;
    // The system's reason, an errno value of std::generic_category(); none with an empty path.
    std::error_code error;

    bool operator==(const TraceSinkFailure&) const = default;
};

// What begin() did: made a new, empty file at `path`, or no file, for `failure`'s reason.
struct TraceSinkStart {
    std::optional<std::string> path;
    TraceSinkFailure failure;  // meaningful only without a path
};

// Where a recorded trace goes: a new file per recording. Every member is called on the main
// thread. begin() returns once the file exists; write() returns at once, the writing itself
// happening elsewhere, in the order given, in batches, so that it never holds up the main
// thread (and with it the event tap); end() returns once everything written is in the file and
// the file is closed.
class TraceSink {
  public:
    virtual ~TraceSink() = default;

    // Creates the folder when it is missing and a new file in it, named after the current time,
    // never replacing an existing file. The file's path, or why there is none.
    virtual TraceSinkStart begin() = 0;
    // Appends `text` (whole lines, each ending in "\n") to the file begun last.
    virtual void write(std::string text) = 0;
    // Writes whatever is still held back and closes the file begun last.
    virtual void end() = 0;
};

}  // namespace tactora
