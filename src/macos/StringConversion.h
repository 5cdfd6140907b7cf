#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace tactora::macos {

// The core speaks UTF-8 std::string; AppKit speaks NSString. These are the only crossings.

inline NSString* toNSString(std::string_view text) {
    return [[NSString alloc] initWithBytes:text.data()
                                    length:text.size()
                                  encoding:NSUTF8StringEncoding]
               ?: @"";
}

inline std::string toStdString(NSString* text) {
    if (text == nil) {
        return {};
    }
    const char* bytes = text.UTF8String;
    return bytes != nullptr ? std::string(bytes) : std::string();
}

}  // namespace tactora::macos
