#pragma once

#include <dispatch/dispatch.h>

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include "core/platform/TraceSink.h"

namespace tactora::macos {

// Writes each recorded trace to a new file under ~/Library/Logs/Tactora/. The main thread only
// queues the work: creating the folder, opening, appending and closing all happen in order on a
// serial background queue, so the disk never holds up the main thread or the event tap. Every
// batch is flushed as it is written, so a trace is readable while it grows.
class FileTraceSink final : public TraceSink {
  public:
    FileTraceSink();
    ~FileTraceSink() override;

    FileTraceSink(const FileTraceSink&) = delete;
    FileTraceSink& operator=(const FileTraceSink&) = delete;
    FileTraceSink(FileTraceSink&&) = delete;
    FileTraceSink& operator=(FileTraceSink&&) = delete;

    std::optional<std::string> begin() override;
    void write(std::string text) override;
    void end() override;

  private:
    // The open file; touched only on queue_.
    struct File {
        std::FILE* handle = nullptr;
    };

    dispatch_queue_t queue_;
    std::shared_ptr<File> file_ = std::make_shared<File>();
};

}  // namespace tactora::macos
