#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/PermissionResetTool.h"

namespace tactora::testing {

// Records each run's arguments and answers with `exitStatus`.
class FakePermissionResetTool final : public PermissionResetTool {
  public:
    std::optional<std::string> bundleIdentifier() const override { return bundleID; }
    std::int32_t run(const std::vector<std::string>& arguments) override {
        runs.push_back(arguments);
        return exitStatus;
    }

    std::optional<std::string> bundleID = "app.tactora.Tactora";
    std::int32_t exitStatus = 0;
    std::vector<std::vector<std::string>> runs;
};

}  // namespace tactora::testing
