#pragma once

#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/profiles/WorkProfile.h"

namespace tactora {

// "--replay FILE [--profile FILE] [--explain]": reads the trace, and the profile list when one is
// given, replays the trace (see TraceReplay.h) and prints what was decided to `out`, explained
// when asked. Returns 0; or, when an argument is missing, a file can't be read or is malformed,
// prints one sentence that says which and why to `err` and returns 1, having printed nothing to
// `out`. Main thread.
int runReplay(std::span<const std::string> arguments, std::ostream& out, std::ostream& err);

// The argument after `flag`: nothing when the flag is absent, empty when it ends the list.
std::optional<std::string> valueAfter(std::span<const std::string> arguments,
                                      std::string_view flag);

// The profile list that `text` holds, sanitised as the store would; nothing when it holds none,
// or two profiles share an id. Pure.
std::optional<std::vector<WorkProfile>> profileList(const std::string& text);

}  // namespace tactora
