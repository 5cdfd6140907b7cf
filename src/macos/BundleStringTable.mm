#include "macos/BundleStringTable.h"

#import <Foundation/Foundation.h>

#import "macos/StringConversion.h"

namespace tactora::macos {

std::optional<std::string> BundleStringTable::lookup(std::string_view key) const {
    NSString* name = toNSString(key);
    NSString* text = [bundle_ localizedStringForKey:name value:nil table:nil];
    // Without a default value a missing entry comes back as the key itself.
    if (text == nil || [text isEqualToString:name]) {
        return std::nullopt;
    }
    return toStdString(text);
}

}  // namespace tactora::macos
