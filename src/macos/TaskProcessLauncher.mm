#include "macos/TaskProcessLauncher.h"

#import <Foundation/Foundation.h>

#include <memory>
#include <string>
#include <utility>

#include "macos/StringConversion.h"

namespace tactora::macos {

namespace {

NSArray<NSString*>* argumentList(const ProcessRequest& request) {
    NSMutableArray<NSString*>* arguments = [NSMutableArray array];
    for (const std::string& argument : request.arguments) {
        [arguments addObject:toNSString(argument)];
    }
    return arguments;
}

}  // namespace

void TaskProcessLauncher::start(const ProcessRequest& request,
                                std::function<void(const ProcessOutcome&)> done) {
    NSTask* task = [[NSTask alloc] init];
    task.executableURL = [NSURL fileURLWithPath:toNSString(request.path)];
    task.arguments = argumentList(request);
    task.standardInput = [NSFileHandle fileHandleWithNullDevice];
    task.standardError = [NSFileHandle fileHandleWithNullDevice];
    NSPipe* pipe = request.captureOutput ? [NSPipe pipe] : nil;
    if (pipe != nil) {
        task.standardOutput = pipe;
    } else {
        task.standardOutput = [NSFileHandle fileHandleWithNullDevice];
    }

    // Done when the program has ended and, when asked for, all of its output is read.
    dispatch_group_t finished = dispatch_group_create();
    dispatch_group_enter(finished);
    task.terminationHandler = ^(NSTask* /*ended*/) {
        dispatch_group_leave(finished);
    };
    NSError* error = nil;
    if (![task launchAndReturnError:&error]) {
        dispatch_async(dispatch_get_main_queue(), ^{
            done(ProcessOutcome{.end = ProcessEnd::failedToStart});
        });
        return;
    }

    __block NSData* output = nil;
    if (pipe != nil) {
        // Read while it runs, so that a full pipe never keeps it from ending.
        NSFileHandle* reading = pipe.fileHandleForReading;
        dispatch_group_async(finished, dispatch_get_global_queue(QOS_CLASS_UTILITY, 0), ^{
            output = [reading readDataToEndOfFile];
        });
    }

    // Set and read on the main queue only.
    const auto timedOut = std::make_shared<bool>(false);
    if (request.timeLimit) {
        const auto limit = static_cast<int64_t>(*request.timeLimit * NSEC_PER_SEC);
        dispatch_after(dispatch_time(DISPATCH_TIME_NOW, limit), dispatch_get_main_queue(), ^{
            if (task.running) {
                *timedOut = true;
                [task terminate];
            }
        });
    }

    dispatch_group_notify(finished, dispatch_get_main_queue(), ^{
        ProcessOutcome outcome{
            .end = *timedOut ? ProcessEnd::timedOut : ProcessEnd::exited,
            .exitStatus = task.terminationStatus,
        };
        if (output != nil) {
            outcome.output.assign(static_cast<const char*>(output.bytes), output.length);
        }
        done(outcome);
    });
}

}  // namespace tactora::macos
