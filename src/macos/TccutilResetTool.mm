#include "macos/TccutilResetTool.h"

#import <Foundation/Foundation.h>
#include <dispatch/dispatch.h>

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>
#include <cerrno>
#include <utility>

#include "macos/StringConversion.h"

extern char** environ;

namespace tactora::macos {

namespace {

constexpr const char* toolPath = "/usr/bin/tccutil";
// How often the background queue looks whether the tool has ended.
constexpr useconds_t pollInterval = 20'000;

dispatch_queue_t toolQueue() {
    static dispatch_queue_t queue =
        dispatch_queue_create("app.tactora.permission-reset", DISPATCH_QUEUE_SERIAL);
    return queue;
}

double secondsNow() {
    return static_cast<double>(clock_gettime_nsec_np(CLOCK_UPTIME_RAW)) / 1e9;
}

// Reaps `child` if it has ended; true then, with `status` filled in.
bool reaped(pid_t child, int& status) {
    for (;;) {
        const pid_t result = waitpid(child, &status, WNOHANG);
        if (result == child) {
            return true;
        }
        if (result == 0) {
            return false;
        }
        if (errno != EINTR) {
            status = -1;
            return true;
        }
    }
}

void reapForGood(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
}

// On the background queue: runs the tool to its end or to the time limit.
ToolOutcome runTool(std::vector<std::string> words, double timeLimit) {
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawn(&child, toolPath, nullptr, nullptr, argv.data(), environ) != 0) {
        return ToolOutcome{};
    }
    const double deadline = secondsNow() + timeLimit;
    int status = 0;
    while (!reaped(child, status)) {
        if (secondsNow() >= deadline) {
            kill(child, SIGKILL);
            reapForGood(child);
            return ToolOutcome{.timedOut = true};
        }
        usleep(pollInterval);
    }
    if (status == -1 || !WIFEXITED(status)) {
        return ToolOutcome{};
    }
    return ToolOutcome{.exitStatus = static_cast<std::int32_t>(WEXITSTATUS(status))};
}

}  // namespace

std::optional<std::string> TccutilResetTool::bundleIdentifier() const {
    NSString* identifier = NSBundle.mainBundle.bundleIdentifier;
    if (identifier == nil) {
        return std::nullopt;
    }
    return toStdString(identifier);
}

void TccutilResetTool::run(const std::vector<std::string>& arguments, double timeLimit, Done done) {
    std::vector<std::string> words{toolPath};
    words.insert(words.end(), arguments.begin(), arguments.end());
    // The blocks keep their own copies of the words and of the completion.
    dispatch_async(toolQueue(), ^{
        const ToolOutcome outcome = runTool(words, timeLimit);
        dispatch_async(dispatch_get_main_queue(), ^{
            done(outcome);
        });
    });
}

}  // namespace tactora::macos
