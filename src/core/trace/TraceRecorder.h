#pragma once

#include <cstddef>

#include "core/platform/TraceSink.h"
#include "core/trace/TraceLine.h"

namespace tactora {

// Turns what the controller receives into the lines of a trace and hands them to a sink, within
// the limits of one recording. Idle until started; main thread only.
class TraceRecorder {
  public:
    // A recording stops by itself after this long, or before its file grows past this size.
    static constexpr double longest = 600;
    static constexpr std::size_t largest = std::size_t{50} * 1024 * 1024;

    bool isRecording() const { return sink_ != nullptr; }

    // Begins a recording at uptime `now` with the format's header line. `sink` must have
    // begun its file and must outlive the recording.
    void start(TraceSink& sink, double now);

    // Writes `line`. False, and nothing written, when the line would pass either limit or no
    // recording is under way; the caller then stops the recording. A line stamped earlier than
    // the one before it is written at that one's time: what the event tap decided reaches the
    // recorder after the frames that came in meanwhile, and a trace's times never go back.
    bool note(const TraceLine& line);

    // Whether the recording begun at start() has run for `longest` seconds by `now`.
    bool expired(double now) const;

    // Ends the recording and closes the sink's file; does nothing when idle.
    void stop();

    // Bytes handed to the sink so far in this recording.
    std::size_t size() const { return size_; }

  private:
    bool write(std::string text);

    TraceSink* sink_ = nullptr;  // not owned; set while recording
    double start_ = 0;
    double last_ = 0;  // the time of the last line written
    std::size_t size_ = 0;
};

}  // namespace tactora
