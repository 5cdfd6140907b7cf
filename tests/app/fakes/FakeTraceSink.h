#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/platform/TraceSink.h"

namespace tactora::testing {

// Keeps each trace file's text in memory; `path` is what begin() answers (nothing: no folder).
class FakeTraceSink final : public TraceSink {
  public:
    std::optional<std::string> begin() override {
        if (path) {
            files.emplace_back();
            open = true;
        }
        return path;
    }
    void write(std::string text) override { files.back() += text; }
    void end() override { open = false; }

    std::optional<std::string> path = "/Logs/Touches.trace";
    std::vector<std::string> files;
    bool open = false;
};

}  // namespace tactora::testing
