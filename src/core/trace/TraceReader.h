#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/trace/TraceLine.h"
#include "core/trace/TraceProblem.h"

namespace tactora {

// A whole trace read, or where and why it could not be.
struct TraceReading {
    std::vector<TraceLine> lines;  // empty when there is an error
    std::optional<TraceError> error;
};

// Reads a trace in the format of TraceFormat.h, of any version up to the current one. Stops at
// the first line that is wrong; then nothing of the trace is kept. Accepts a leading byte
// order mark, "\r\n" line ends and a missing final line break. Never throws; pure; any thread.
TraceReading readTrace(std::string_view text);

}  // namespace tactora
