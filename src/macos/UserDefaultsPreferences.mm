#include "macos/UserDefaultsPreferences.h"

#include "macos/StringConversion.h"

namespace tactora::macos {

UserDefaultsPreferences::UserDefaultsPreferences(NSUserDefaults* defaults) : defaults_(defaults) {}

id UserDefaultsPreferences::object(const std::string& key) const {
    return [defaults_ objectForKey:toNSString(key)];
}

// The typed getters of NSUserDefaults convert between strings and numbers; a value of the wrong
// type must read as absent instead, so the object's class is checked here. Where text is to be
// read as a number the way integerForKey: reads it (legacy gesture values written with
// `defaults write`), the core's defaultsInteger does so, identically on every system.

std::optional<Bytes> UserDefaultsPreferences::data(const std::string& key) const {
    id value = object(key);
    if (![value isKindOfClass:NSData.class]) {
        return std::nullopt;
    }
    NSData* bytes = value;
    const auto* first = static_cast<const std::uint8_t*>(bytes.bytes);
    return Bytes(first, first + bytes.length);
}

std::optional<std::string> UserDefaultsPreferences::string(const std::string& key) const {
    id value = object(key);
    if (![value isKindOfClass:NSString.class]) {
        return std::nullopt;
    }
    return toStdString(value);
}

std::optional<std::int64_t> UserDefaultsPreferences::integer(const std::string& key) const {
    id value = object(key);
    if (![value isKindOfClass:NSNumber.class]) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>([value longLongValue]);
}

void UserDefaultsPreferences::setData(const std::string& key, const Bytes& value) {
    [defaults_ setObject:[NSData dataWithBytes:value.data() length:value.size()]
                  forKey:toNSString(key)];
}

void UserDefaultsPreferences::setString(const std::string& key, const std::string& value) {
    [defaults_ setObject:toNSString(value) forKey:toNSString(key)];
}

void UserDefaultsPreferences::setInteger(const std::string& key, std::int64_t value) {
    [defaults_ setObject:@(static_cast<long long>(value)) forKey:toNSString(key)];
}

void UserDefaultsPreferences::remove(const std::string& key) {
    [defaults_ removeObjectForKey:toNSString(key)];
}

}  // namespace tactora::macos
