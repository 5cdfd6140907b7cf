#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/platform/PermissionResetTool.h"

namespace tactora::macos {

// Runs /usr/bin/tccutil directly (an argument array, no shell) on a serial background queue,
// waits for it there up to the time limit, kills it when it overruns, and reports on the main
// queue. A tool that could not be started, or that did not exit normally, counts as exit
// status -1.
class TccutilResetTool final : public PermissionResetTool {
  public:
    std::optional<std::string> bundleIdentifier() const override;
    void run(const std::vector<std::string>& arguments, double timeLimit, Done done) override;
};

}  // namespace tactora::macos
