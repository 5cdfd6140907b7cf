#include "macos/BundleStringTable.h"

#import <Foundation/Foundation.h>

#import "macos/StringConversion.h"

namespace tactora::macos {

namespace {

// Foundation resolves the resource in the bundle's chosen localisation, as it does for the
// .strings table.
StringsDictFile bundlePlurals(NSBundle* bundle) {
    NSURL* url = [bundle URLForResource:@"Localizable" withExtension:@"stringsdict"];
    NSData* data = url != nil ? [NSData dataWithContentsOfURL:url] : nil;
    if (data == nil) {
        return {};
    }
    return parseStringsDictFile(
        std::string_view(static_cast<const char*>(data.bytes), data.length));
}

}  // namespace

BundleStringTable::BundleStringTable(NSBundle* bundle)
    : bundle_(bundle), plurals_(bundlePlurals(bundle)) {
    NSString* localization = bundle.preferredLocalizations.firstObject;
    if (localization != nil) {
        language_ = toStdString(localization);
    }
}

std::optional<std::string> BundleStringTable::lookup(std::string_view key) const {
    NSString* name = toNSString(key);
    NSString* text = [bundle_ localizedStringForKey:name value:nil table:nil];
    // Without a default value a missing entry comes back as the key itself.
    if (text == nil || [text isEqualToString:name]) {
        return std::nullopt;
    }
    return toStdString(text);
}

std::optional<PluralFormat> BundleStringTable::pluralFormat(std::string_view key) const {
    const auto found = plurals_.entries.find(key);
    if (found == plurals_.entries.end()) {
        return std::nullopt;
    }
    return found->second;
}

}  // namespace tactora::macos
