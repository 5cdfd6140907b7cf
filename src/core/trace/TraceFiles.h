#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <system_error>

#include "core/platform/TraceSink.h"

// The files that recordings go to: their names, their creation, and what to say when there is
// none. Pure except for what the caller's functions do; any thread.
namespace tactora::trace {

// How many recordings started within the same second get files of their own.
inline constexpr int mostFilesPerStamp = 99;

// The name of the `number`th recording whose time reads `stamp` ("2026-11-22 at 17.20.05"):
// "Touches 2026-11-22 at 17.20.05.trace" for the first, then "... 17.20.05-2.trace" and so on.
std::string fileName(std::string_view stamp, int number);

// Makes the file at a path only if nothing is there yet; no error, or why not (errno's value,
// std::errc::file_exists when the path is taken).
using CreateExclusively = std::function<std::error_code(const std::string& path)>;

// Creates a new file in `folder` for a recording whose time reads `stamp`, trying each name in
// turn and going on to the next only while the name is taken. Never replaces an existing file.
TraceSinkStart createFile(const std::string& folder, std::string_view stamp,
                          const CreateExclusively& create);

}  // namespace tactora::trace

namespace tactora {

// The localised status line for a recording that could not start, saying why.
std::string describeTraceSinkFailure(const TraceSinkFailure& failure);

}  // namespace tactora
