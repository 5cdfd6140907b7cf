#pragma once

#include <dispatch/dispatch.h>

#include <memory>
#include <string>

#include "core/platform/TraceSink.h"

namespace tactora::macos {

// Writes each recorded trace to a new file under ~/Library/Logs/Tactora/.
//
// begin() makes the folder and the file before it returns, so that a recording starts only
// when its file exists. Lines then collect in a buffer on the main thread and go to the disk in
// batches, when the buffer passes `batchBytes` or `batchDelay` after its first line, whichever
// comes first; a serial background queue writes each batch, so the disk never holds up the main
// thread or the event tap, and the file is readable while it grows. end() hands over what is
// left, waits for the queue to write it and closes the file: when it returns, the trace is
// complete.
//
// Main thread only, except for what runs on its queue.
class FileTraceSink final : public TraceSink {
  public:
    static constexpr std::size_t batchBytes = std::size_t{64} * 1024;
    static constexpr double batchDelay = 0.25;  // seconds

    FileTraceSink();
    ~FileTraceSink() override;

    FileTraceSink(const FileTraceSink&) = delete;
    FileTraceSink& operator=(const FileTraceSink&) = delete;
    FileTraceSink(FileTraceSink&&) = delete;
    FileTraceSink& operator=(FileTraceSink&&) = delete;

    TraceSinkStart begin() override;
    void write(std::string text) override;
    void end() override;

  private:
    // The open file; touched only on queue_.
    struct File {
        int descriptor = -1;
        bool failed = false;  // a write failed; the rest of this recording is dropped
    };
    // Lines not yet handed to the queue; touched only on the main thread.
    struct Pending {
        std::string text;
        bool handOverScheduled = false;
    };

    // Hands everything pending to the queue, which appends it to the file.
    static void handOver(const std::shared_ptr<Pending>& pending, const std::shared_ptr<File>& file,
                         dispatch_queue_t queue);
    // Closes the file on the queue and waits for it, and for everything queued before.
    void close();

    dispatch_queue_t queue_;
    std::shared_ptr<File> file_ = std::make_shared<File>();
    std::shared_ptr<Pending> pending_ = std::make_shared<Pending>();
};

}  // namespace tactora::macos
