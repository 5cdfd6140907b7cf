#include "macos/AppKitProfileFiles.h"

#import <AppKit/AppKit.h>

#include <utility>

#include "macos/StringConversion.h"

// The class method of the Uniform Type Identifiers framework's type class used here, with
// Apple's selector. The SDK this is built against may lack the framework's headers; AppKit's
// panels load it, so the class is looked up at run time.
@protocol TAContentTypeClass <NSObject>
+ (nullable id)typeWithIdentifier:(NSString*)identifier;
@end

namespace tactora::macos {

namespace {

// The JSON content type ("public.json"), so that the panels enable and propose .json files
// only; empty (every file) should the type be unknown.
NSArray* jsonContentTypes() {
    Class typeClass = NSClassFromString(@"UTType");
    if (typeClass == nil || ![typeClass respondsToSelector:@selector(typeWithIdentifier:)]) {
        return @[];
    }
    id json = [(Class<TAContentTypeClass>)typeClass typeWithIdentifier:@"public.json"];
    return json != nil ? @[ json ] : @[];
}

}  // namespace

void AppKitProfileFiles::chooseExportPath(const std::string& suggestedName,
                                          const std::string& message, PathChosen chosen) {
    NSSavePanel* panel = [NSSavePanel savePanel];
    panel.message = toNSString(message);
    panel.nameFieldStringValue = toNSString(suggestedName);
    panel.canCreateDirectories = YES;
    panel.allowedContentTypes = jsonContentTypes();
    begin(panel, std::move(chosen));
}

void AppKitProfileFiles::chooseImportPath(const std::string& message, PathChosen chosen) {
    NSOpenPanel* panel = [NSOpenPanel openPanel];
    panel.message = toNSString(message);
    panel.canChooseFiles = YES;
    panel.canChooseDirectories = NO;
    panel.allowsMultipleSelection = NO;
    panel.allowedContentTypes = jsonContentTypes();
    begin(panel, std::move(chosen));
}

// Both completion handlers run on the main thread when the panel closes.
void AppKitProfileFiles::begin(NSSavePanel* panel, PathChosen chosen) {
    __weak NSSavePanel* weakPanel = panel;
    void (^closed)(NSModalResponse) = ^(NSModalResponse response) {
        NSURL* url = weakPanel.URL;
        if (response != NSModalResponseOK || url == nil) {
            chosen(std::nullopt);
            return;
        }
        chosen(toStdString(url.path));
    };
    NSWindow* window = controls_.window;
    if (window != nil && window.visible) {
        [panel beginSheetModalForWindow:window completionHandler:closed];
    } else {
        [panel beginWithCompletionHandler:closed];
    }
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
