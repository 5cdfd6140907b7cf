#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/PermissionResetTool.h"

namespace tactora::macos {

// Runs /usr/bin/tccutil directly (an argument array, no shell) and waits for it; a tool that
// could not be started, or that did not exit normally, counts as exit status -1.
class TccutilResetTool final : public PermissionResetTool {
  public:
    std::optional<std::string> bundleIdentifier() const override;
    std::int32_t run(const std::vector<std::string>& arguments) override;
};

}  // namespace tactora::macos
