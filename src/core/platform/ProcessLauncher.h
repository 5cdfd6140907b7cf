#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tactora {

// A program to start with an argument list, never through a shell.
struct ProcessRequest {
    std::string path;  // absolute
    std::vector<std::string> arguments;
    // Terminated when it runs longer; nothing lets it run until it ends.
    std::optional<double> timeLimit;
    bool captureOutput = false;  // whether `done` gets what it wrote to its standard output

    bool operator==(const ProcessRequest&) const = default;
};

enum class ProcessEnd : std::uint8_t {
    exited,         // ran to its end; see the exit status
    failedToStart,  // the program is missing or could not be started
    timedOut,       // terminated at the time limit
};

struct ProcessOutcome {
    ProcessEnd end = ProcessEnd::exited;
    std::int32_t exitStatus = 0;  // meaningful when it exited
    std::string output;           // its standard output, when asked for

    bool succeeded() const { return end == ProcessEnd::exited && exitStatus == 0; }
    bool operator==(const ProcessOutcome&) const = default;
};

// Runs programs in the background. Main thread only: start() returns at once, and `done` runs
// later on the main thread with the outcome.
class ProcessLauncher {
  public:
    virtual ~ProcessLauncher() = default;

    virtual void start(const ProcessRequest& request,
                       std::function<void(const ProcessOutcome&)> done) = 0;
};

}  // namespace tactora
