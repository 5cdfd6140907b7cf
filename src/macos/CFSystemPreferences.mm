#include "macos/CFSystemPreferences.h"

#include <CoreFoundation/CoreFoundation.h>

#include "macos/CFHandle.h"

namespace tactora::macos {

namespace {

CFHandle<CFStringRef> cfString(std::string_view text) {
    return CFHandle<CFStringRef>(
        CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(text.data()),
                                static_cast<CFIndex>(text.size()), kCFStringEncodingUTF8, false));
}

}  // namespace

std::optional<std::int64_t> CFSystemPreferences::integer(std::string_view domain,
                                                         std::string_view key) const {
    const CFHandle<CFStringRef> application = cfString(domain);
    const CFHandle<CFStringRef> name = cfString(key);
    if (!application || !name) {
        return std::nullopt;
    }
    CFPreferencesAppSynchronize(application.get());
    const CFHandle<CFPropertyListRef> value(
        CFPreferencesCopyAppValue(name.get(), application.get()));
    if (!value) {
        return std::nullopt;
    }
    if (CFGetTypeID(value.get()) == CFBooleanGetTypeID()) {
        return CFBooleanGetValue(static_cast<CFBooleanRef>(value.get())) ? 1 : 0;
    }
    std::int64_t number = 0;
    if (CFGetTypeID(value.get()) == CFNumberGetTypeID() &&
        CFNumberGetValue(static_cast<CFNumberRef>(value.get()), kCFNumberSInt64Type, &number)) {
        return number;
    }
    return std::nullopt;
}

}  // namespace tactora::macos
