#include "macos/AppBundle.h"

#include <algorithm>

namespace tactora::testing {

NSBundle* appBundle() {
    return [NSBundle bundleWithPath:@TACTORA_APP_BUNDLE];
}

std::vector<std::string> shippedLanguages() {
    NSString* resources = appBundle().resourcePath;
    NSArray<NSString*>* entries = [NSFileManager.defaultManager contentsOfDirectoryAtPath:resources
                                                                                    error:nil];
    std::vector<std::string> languages;
    for (NSString* entry in entries) {
        if ([entry.pathExtension isEqualToString:@"lproj"]) {
            languages.emplace_back(entry.stringByDeletingPathExtension.UTF8String);
        }
    }
    std::ranges::sort(languages);
    return languages;
}

NSString* stringTablePath(const std::string& language) {
    NSString* folder = [@(language.c_str()) stringByAppendingPathExtension:@"lproj"];
    return [[appBundle().resourcePath stringByAppendingPathComponent:folder]
        stringByAppendingPathComponent:@"Localizable.strings"];
}

}  // namespace tactora::testing
