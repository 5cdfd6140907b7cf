#include "macos/AppBundle.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "macos/StringConversion.h"

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

void installStringTable(const std::string& language) {
    NSDictionary* texts = [NSDictionary dictionaryWithContentsOfFile:stringTablePath(language)];
    StringsTable::Entries entries;
    for (NSString* key in texts) {
        if ([texts[key] isKindOfClass:NSString.class]) {
            entries.emplace(macos::toStdString(key), macos::toStdString(texts[key]));
        }
    }
    setStringTable(std::make_shared<const StringsTable>(std::move(entries)));
    initializeGlobals();
}

}  // namespace tactora::testing
