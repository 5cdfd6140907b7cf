#include "core/trace/TraceRecorder.h"

#include <string>
#include <utility>

#include "core/trace/TraceFormat.h"

namespace tactora {

void TraceRecorder::start(TraceSink& sink, double now) {
    sink_ = &sink;
    start_ = now;
    last_ = now;
    size_ = 0;
    write(trace::header() + '\n');
}

bool TraceRecorder::note(const TraceLine& line) {
    if (!isRecording() || expired(line.time)) {
        return false;
    }
    if (line.time >= last_) {
        last_ = line.time;
        return write(trace::formatLine(line) + '\n');
    }
    TraceLine inOrder = line;
    inOrder.time = last_;
    return write(trace::formatLine(inOrder) + '\n');
}

bool TraceRecorder::expired(double now) const {
    return isRecording() && now - start_ >= longest;
}

void TraceRecorder::stop() {
    if (!isRecording()) {
        return;
    }
    sink_->end();
    sink_ = nullptr;
}

bool TraceRecorder::write(std::string text) {
    if (size_ + text.size() > largest) {
        return false;
    }
    size_ += text.size();
    sink_->write(std::move(text));
    return true;
}

}  // namespace tactora
