#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/platform/TraceSink.h"

namespace tactora::testing {

// Keeps each trace file's text in memory. begin() answers `path`, or, when it is reset,
// `failure`: by default the failure of a system that names no folder for logs.
class FakeTraceSink final : public TraceSink {
  public:
    TraceSinkStart begin() override {
        if (!path) {
            return {std::nullopt, failure};
        }
        files.emplace_back();
        open = true;
        return {path, {}};
    }
    void write(std::string text) override { files.back() += text; }
    void end() override { open = false; }

    // Makes the next begin() fail for `reason`, as the system would for `what`.
    void failWith(std::string what, std::errc reason) {
        path.reset();
        failure = {std::move(what), std::make_error_code(reason)};
    }

    std::optional<std::string> path = "/Logs/Touches.trace";
    TraceSinkFailure failure;
    std::vector<std::string> files;
    bool open = false;
};

}  // namespace tactora::testing
