#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tactora {

// How one run of the tool ended.
struct ToolOutcome {
    // Still running at the time limit, and killed.
    bool timedOut = false;
    // When it ended by itself: its exit status; -1 when it could not be started or did not
    // exit normally.
    std::int32_t exitStatus = -1;

    bool operator==(const ToolOutcome&) const = default;
};

// The system's privacy database tool, /usr/bin/tccutil, run for this application. Called on the
// main thread; the tool itself runs off it, so that the main thread (through which every click
// passes) never waits for it.
class PermissionResetTool {
  public:
    using Done = std::function<void(ToolOutcome outcome)>;

    virtual ~PermissionResetTool() = default;

    // The main bundle's identifier, or nothing when the bundle has none.
    virtual std::optional<std::string> bundleIdentifier() const = 0;

    // Starts the tool with `arguments` (each passed as one argument, never through a shell) and
    // returns at once. A tool still running `timeLimit` seconds later is killed. `done` runs
    // once, on the main thread, with the outcome.
    virtual void run(const std::vector<std::string>& arguments, double timeLimit, Done done) = 0;
};

}  // namespace tactora
