#include "macos/AppKitProfileFiles.h"

#import <AppKit/AppKit.h>

#include "macos/StringConversion.h"

namespace tactora::macos {

AppKitProfileFiles::AppKitProfileFiles()
    : jsonFilter_([[TAExtensionFilter alloc] initWithExtension:@"json"]) {}

std::optional<std::string> AppKitProfileFiles::chooseExportPath(const std::string& suggestedName,
                                                                const std::string& message) {
    NSSavePanel* panel = [NSSavePanel savePanel];
    panel.message = toNSString(message);
    panel.nameFieldStringValue = toNSString(suggestedName);
    panel.canCreateDirectories = YES;
    if ([panel runModal] != NSModalResponseOK || panel.URL == nil) {
        return std::nullopt;
    }
    return toStdString(panel.URL.path);
}

std::optional<std::string> AppKitProfileFiles::chooseImportPath(const std::string& message) {
    NSOpenPanel* panel = [NSOpenPanel openPanel];
    panel.message = toNSString(message);
    panel.canChooseFiles = YES;
    panel.canChooseDirectories = NO;
    panel.allowsMultipleSelection = NO;
    panel.delegate = jsonFilter_;
    if ([panel runModal] != NSModalResponseOK || panel.URL == nil) {
        return std::nullopt;
    }
    return toStdString(panel.URL.path);
}

std::optional<std::string> AppKitProfileFiles::read(const std::string& path, std::size_t limit) {
    NSError* error = nil;
    NSFileHandle* file =
        [NSFileHandle fileHandleForReadingFromURL:[NSURL fileURLWithPath:toNSString(path)]
                                            error:&error];
    if (file == nil) {
        return std::nullopt;
    }
    NSData* data = [file readDataUpToLength:limit error:&error];
    [file closeAndReturnError:nil];
    if (data == nil) {
        return std::nullopt;
    }
    return std::string(static_cast<const char*>(data.bytes), data.length);
}

bool AppKitProfileFiles::write(const std::string& path, const std::string& bytes) {
    NSData* data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
    return [data writeToURL:[NSURL fileURLWithPath:toNSString(path)]
                    options:NSDataWritingAtomic
                      error:nil];
}

}  // namespace tactora::macos
