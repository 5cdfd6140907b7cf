#include "macos/FileTraceSink.h"

#import <Foundation/Foundation.h>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

#include "core/trace/TraceFiles.h"

namespace tactora::macos {

namespace {

NSURL* _Nullable tracesFolder() {
    NSURL* library = [NSFileManager.defaultManager URLsForDirectory:NSLibraryDirectory
                                                          inDomains:NSUserDomainMask]
                         .firstObject;
    return [library URLByAppendingPathComponent:@"Logs/Tactora" isDirectory:YES];
}

// "2026-11-22 at 17.20.05", in the Gregorian calendar whatever the user's locale.
std::string timeStamp() {
    NSDateFormatter* formatter = [[NSDateFormatter alloc] init];
    formatter.locale = [NSLocale localeWithLocaleIdentifier:@"en_US_POSIX"];
    formatter.dateFormat = @"yyyy-MM-dd 'at' HH.mm.ss";
    return [formatter stringFromDate:[NSDate date]].UTF8String;
}

// The errno value behind a file manager's error: the underlying POSIX error when there is one,
// otherwise the nearest for the Cocoa codes that say why a folder can't be made.
int posixErrorOf(NSError* _Nullable error) {
    NSError* underlying = error.userInfo[NSUnderlyingErrorKey];
    if ([underlying.domain isEqualToString:NSPOSIXErrorDomain]) {
        return static_cast<int>(underlying.code);
    }
    if ([error.domain isEqualToString:NSCocoaErrorDomain]) {
        switch (error.code) {
            case NSFileWriteNoPermissionError:
                return EACCES;
            case NSFileWriteOutOfSpaceError:
                return ENOSPC;
            case NSFileWriteVolumeReadOnlyError:
                return EROFS;
            default:
                break;
        }
    }
    return EIO;
}

// Creates the file only if nothing is at `path` (open(2) with O_CREAT | O_EXCL), for writing.
std::error_code createExclusively(const std::string& path, int& descriptor) {
    descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (descriptor < 0) {
        return {errno, std::generic_category()};
    }
    return {};
}

// Writes all of `text`, going on after a signal or a partial write; errno's value on failure.
int writeAll(int descriptor, const std::string& text) {
    std::size_t written = 0;
    while (written < text.size()) {
        const ssize_t count = ::write(descriptor, text.data() + written, text.size() - written);
        if (count < 0) {
            if (errno == EINTR) {
                continue;
            }
            return errno;
        }
        written += static_cast<std::size_t>(count);
    }
    return 0;
}

}  // namespace

FileTraceSink::FileTraceSink()
    : queue_(dispatch_queue_create(
          "app.tactora.traces",
          dispatch_queue_attr_make_with_qos_class(DISPATCH_QUEUE_SERIAL, QOS_CLASS_UTILITY, 0))) {}

FileTraceSink::~FileTraceSink() {
    handOver(pending_, file_, queue_);
    close();
}

TraceSinkStart FileTraceSink::begin() {
    // A recording still open is finished first; end() normally did that already.
    handOver(pending_, file_, queue_);
    close();
    NSURL* folder = tracesFolder();
    if (folder == nil) {
        return {};
    }
    const std::string folderPath = folder.fileSystemRepresentation;
    NSError* error = nil;
    if (![NSFileManager.defaultManager createDirectoryAtURL:folder
                                withIntermediateDirectories:YES
                                                 attributes:nil
                                                      error:&error]) {
        return {std::nullopt, {folderPath, {posixErrorOf(error), std::generic_category()}}};
    }
    const std::string stamp = timeStamp();
    TraceSinkStart start;
    TraceSinkStart* result = &start;
    std::shared_ptr<File> file = file_;
    // On the queue, where the file lives; dispatch_sync returns once the block has run.
    dispatch_sync(queue_, ^{
        *result = trace::createFile(folderPath, stamp, [&file](const std::string& path) {
            return createExclusively(path, file->descriptor);
        });
        file->failed = false;
    });
    return start;
}

void FileTraceSink::write(std::string text) {
    pending_->text += text;
    if (pending_->text.size() >= batchBytes) {
        handOver(pending_, file_, queue_);
        return;
    }
    if (pending_->handOverScheduled) {
        return;
    }
    pending_->handOverScheduled = true;
    std::shared_ptr<Pending> pending = pending_;
    std::shared_ptr<File> file = file_;
    dispatch_queue_t queue = queue_;
    dispatch_after(
        dispatch_time(DISPATCH_TIME_NOW, static_cast<int64_t>(batchDelay * NSEC_PER_SEC)),
        dispatch_get_main_queue(), ^{
            pending->handOverScheduled = false;
            handOver(pending, file, queue);
        });
}

void FileTraceSink::end() {
    handOver(pending_, file_, queue_);
    close();
}

void FileTraceSink::handOver(const std::shared_ptr<Pending>& pending,
                             const std::shared_ptr<File>& file, dispatch_queue_t queue) {
    if (pending->text.empty()) {
        return;
    }
    auto batch = std::make_shared<std::string>(std::move(pending->text));
    pending->text.clear();
    std::shared_ptr<File> target = file;
    dispatch_async(queue, ^{
        if (target->descriptor < 0 || target->failed) {
            return;
        }
        if (const int error = writeAll(target->descriptor, *batch); error != 0) {
            target->failed = true;
            NSLog(@"Tactora can't write the touch trace: %s", std::strerror(error));
        }
    });
}

void FileTraceSink::close() {
    std::shared_ptr<File> file = file_;
    dispatch_sync(queue_, ^{
        if (file->descriptor >= 0) {
            ::close(file->descriptor);
            file->descriptor = -1;
        }
    });
}

}  // namespace tactora::macos
