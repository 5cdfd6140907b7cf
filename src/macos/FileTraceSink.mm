#include "macos/FileTraceSink.h"

#import <Foundation/Foundation.h>

#include <utility>

#include "macos/StringConversion.h"

namespace tactora::macos {

namespace {

NSURL* _Nullable tracesFolder() {
    NSURL* library = [NSFileManager.defaultManager URLsForDirectory:NSLibraryDirectory
                                                          inDomains:NSUserDomainMask]
                         .firstObject;
    return [library URLByAppendingPathComponent:@"Logs/Tactora" isDirectory:YES];
}

// "Touches 2026-11-22 at 17.20.05.trace", in the Gregorian calendar whatever the user's locale.
NSString* traceFileName() {
    NSDateFormatter* formatter = [[NSDateFormatter alloc] init];
    formatter.locale = [NSLocale localeWithLocaleIdentifier:@"en_US_POSIX"];
    formatter.dateFormat = @"yyyy-MM-dd 'at' HH.mm.ss";
    return
        [NSString stringWithFormat:@"Touches %@.trace", [formatter stringFromDate:[NSDate date]]];
}

}  // namespace

FileTraceSink::FileTraceSink()
    : queue_(dispatch_queue_create(
          "app.tactora.traces",
          dispatch_queue_attr_make_with_qos_class(DISPATCH_QUEUE_SERIAL, QOS_CLASS_UTILITY, 0))) {}

FileTraceSink::~FileTraceSink() {
    // Whatever was queued is written and the file closed before the sink goes.
    std::shared_ptr<File> file = file_;
    dispatch_sync(queue_, ^{
        if (file->handle != nullptr) {
            std::fclose(file->handle);
            file->handle = nullptr;
        }
    });
}

std::optional<std::string> FileTraceSink::begin() {
    NSURL* folder = tracesFolder();
    if (folder == nil) {
        return std::nullopt;
    }
    NSURL* url = [folder URLByAppendingPathComponent:traceFileName() isDirectory:NO];
    const std::string path = url.fileSystemRepresentation;
    std::shared_ptr<File> file = file_;
    dispatch_async(queue_, ^{
        [NSFileManager.defaultManager createDirectoryAtURL:folder
                               withIntermediateDirectories:YES
                                                attributes:nil
                                                     error:nil];
        if (file->handle != nullptr) {
            std::fclose(file->handle);
        }
        file->handle = std::fopen(path.c_str(), "w");
        if (file->handle == nullptr) {
            NSLog(@"Tactora can't write the touch trace %s", path.c_str());
        }
    });
    return path;
}

void FileTraceSink::write(std::string text) {
    std::shared_ptr<File> file = file_;
    auto batch = std::make_shared<std::string>(std::move(text));
    dispatch_async(queue_, ^{
        if (file->handle != nullptr) {
            std::fwrite(batch->data(), 1, batch->size(), file->handle);
            std::fflush(file->handle);
        }
    });
}

void FileTraceSink::end() {
    std::shared_ptr<File> file = file_;
    dispatch_async(queue_, ^{
        if (file->handle != nullptr) {
            std::fclose(file->handle);
            file->handle = nullptr;
        }
    });
}

}  // namespace tactora::macos
