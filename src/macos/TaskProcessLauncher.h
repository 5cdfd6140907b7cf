#pragma once

#include <functional>

#include "core/platform/ProcessLauncher.h"

namespace tactora::macos {

// Starts programs with NSTask, from their path and argument list (never through a shell), with
// no input and no error output; waits for them off the main thread and answers on the main
// queue.
class TaskProcessLauncher final : public ProcessLauncher {
  public:
    void start(const ProcessRequest& request,
               std::function<void(const ProcessOutcome&)> done) override;
};

}  // namespace tactora::macos
