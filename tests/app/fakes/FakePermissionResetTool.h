#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/platform/PermissionResetTool.h"

namespace tactora::testing {

// Records each run's arguments and time limit and keeps its completion until the test calls
// finish() (the tool runs off the main thread; its outcome arrives later).
class FakePermissionResetTool final : public PermissionResetTool {
  public:
    std::optional<std::string> bundleIdentifier() const override { return bundleID; }
    void run(const std::vector<std::string>& arguments, double timeLimit, Done done) override {
        runs.push_back(arguments);
        timeLimits.push_back(timeLimit);
        pending.push_back(std::move(done));
    }

    // Ends the oldest run still under way with `outcome`; false when none is.
    bool finish(ToolOutcome outcome) {
        if (pending.empty()) {
            return false;
        }
        Done done = std::move(pending.front());
        pending.erase(pending.begin());
        done(outcome);
        return true;
    }
    bool finish(std::int32_t exitStatus) { return finish(ToolOutcome{.exitStatus = exitStatus}); }
    // Ends every run as it comes, with exit status 0, until none is left.
    void finishAll() {
        while (finish(0)) {
        }
    }

    std::optional<std::string> bundleID = "app.tactora.Tactora";
    std::vector<std::vector<std::string>> runs;
    std::vector<double> timeLimits;
    std::vector<Done> pending;
};

}  // namespace tactora::testing
