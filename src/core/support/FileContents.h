#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tactora {

// The bytes of the regular file at `path`, or nothing when there is no such file or it can't be
// read to its end. Any thread.
std::optional<std::string> readFileContents(const std::filesystem::path& path);

}  // namespace tactora
