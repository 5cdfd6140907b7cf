#include "core/support/FileContents.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace tactora {

std::optional<std::string> readFileContents(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return std::nullopt;
    }
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        return std::nullopt;
    }
    std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (stream.bad()) {
        return std::nullopt;
    }
    return bytes;
}

}  // namespace tactora
