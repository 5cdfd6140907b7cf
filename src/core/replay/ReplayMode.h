#pragma once

#include <iosfwd>
#include <span>
#include <string>

namespace tactora {

// "--replay FILE [--profile FILE] [--explain]": reads the trace, and the profile list when one is
// given, replays the trace (see TraceReplay.h) and prints what was decided to `out`, explained
// when asked. Returns 0; or,
// when an argument is missing, a file can't be read or is malformed, prints one sentence that
// says which and why to `err` and returns 1, having printed nothing to `out`. Main thread.
int runReplay(std::span<const std::string> arguments, std::ostream& out, std::ostream& err);

}  // namespace tactora
