#include "macos/TccutilResetTool.h"

#import <Foundation/Foundation.h>

#include "macos/StringConversion.h"

namespace tactora::macos {

std::optional<std::string> TccutilResetTool::bundleIdentifier() const {
    NSString* identifier = NSBundle.mainBundle.bundleIdentifier;
    if (identifier == nil) {
        return std::nullopt;
    }
    return toStdString(identifier);
}

std::int32_t TccutilResetTool::run(const std::vector<std::string>& arguments) {
    NSMutableArray<NSString*>* list = [NSMutableArray arrayWithCapacity:arguments.size()];
    for (const std::string& argument : arguments) {
        [list addObject:toNSString(argument)];
    }
    NSTask* task = [[NSTask alloc] init];
    task.executableURL = [NSURL fileURLWithPath:@"/usr/bin/tccutil" isDirectory:NO];
    task.arguments = list;
    if (![task launchAndReturnError:nil]) {
        return -1;
    }
    [task waitUntilExit];
    return task.terminationStatus;
}

}  // namespace tactora::macos
