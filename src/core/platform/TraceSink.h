#pragma once

#include <optional>
#include <string>

namespace tactora {

// Where a recorded trace goes: a new file per recording. Every member is called on the main
// thread and returns at once; the writing itself happens elsewhere, in the order given, so
// that it never holds up the main thread (and with it the event tap).
class TraceSink {
  public:
    virtual ~TraceSink() = default;

    // Starts a new trace file, named after the current time; the path shown to the user, or
    // nothing when there is nowhere to put it.
    virtual std::optional<std::string> begin() = 0;
    // Appends `text` (whole lines, each ending in "\n") to the file begun last.
    virtual void write(std::string text) = 0;
    // Closes the file begun last.
    virtual void end() = 0;
};

}  // namespace tactora
