#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tactora {

// The system's privacy database tool, /usr/bin/tccutil, run for this application. Main thread
// only; run() waits for the tool to finish.
class PermissionResetTool {
  public:
    virtual ~PermissionResetTool() = default;

    // The main bundle's identifier, or nothing when the bundle has none.
    virtual std::optional<std::string> bundleIdentifier() const = 0;

    // Runs the tool with `arguments` (each passed as one argument, never through a shell) and
    // returns its exit status; a tool that could not be started returns -1.
    virtual std::int32_t run(const std::vector<std::string>& arguments) = 0;
};

}  // namespace tactora
