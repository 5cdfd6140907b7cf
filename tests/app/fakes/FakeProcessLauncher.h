#pragma once

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

#include "core/platform/ProcessLauncher.h"

namespace tactora::testing {

// Records every program started; each ends when the test calls finish().
class FakeProcessLauncher final : public ProcessLauncher {
  public:
    void start(const ProcessRequest& request,
               std::function<void(const ProcessOutcome&)> done) override {
        started.push_back(request);
        pending_.push_back(std::move(done));
    }

    // Ends the oldest program still running with `outcome`. False when none runs.
    bool finish(const ProcessOutcome& outcome) {
        if (pending_.empty()) {
            return false;
        }
        auto done = std::move(pending_.front());
        pending_.erase(pending_.begin());
        done(outcome);
        return true;
    }

    std::size_t running() const { return pending_.size(); }

    std::vector<ProcessRequest> started;

  private:
    std::vector<std::function<void(const ProcessOutcome&)>> pending_;
};

}  // namespace tactora::testing
