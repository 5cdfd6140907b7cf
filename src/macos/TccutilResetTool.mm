#include "macos/TccutilResetTool.h"

#import <Foundation/Foundation.h>

#include <spawn.h>
#include <sys/wait.h>
#include <cerrno>

#include "macos/StringConversion.h"

extern char** environ;

namespace tactora::macos {

namespace {

constexpr const char* toolPath = "/usr/bin/tccutil";

}  // namespace

std::optional<std::string> TccutilResetTool::bundleIdentifier() const {
    NSString* identifier = NSBundle.mainBundle.bundleIdentifier;
    if (identifier == nil) {
        return std::nullopt;
    }
    return toStdString(identifier);
}

// Spawned and waited for without running the run loop, so that no timer or event tap callback
// runs in the middle of the reset.
std::int32_t TccutilResetTool::run(const std::vector<std::string>& arguments) {
    std::vector<std::string> words{toolPath};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawn(&child, toolPath, nullptr, nullptr, argv.data(), environ) != 0) {
        return -1;
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return -1;
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace tactora::macos
