#include "linux/BundleLocation.h"

#include <system_error>

namespace tactora {

namespace {
std::filesystem::path executablePath(const char* argument0) {
    std::error_code error;
    auto path = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) {
        return path;
    }
    path = std::filesystem::absolute(argument0 != nullptr ? argument0 : "", error);
    return error ? std::filesystem::path() : path;
}
}  // namespace

std::filesystem::path bundleResourcesDirectory(const char* argument0) {
    // Contents/MacOS/<executable> -> Contents/Resources
    return executablePath(argument0).parent_path().parent_path() / "Resources";
}

}  // namespace tactora
