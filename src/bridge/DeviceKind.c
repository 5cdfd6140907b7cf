#include "bridge/DeviceKind.h"

#include <string.h>

static char lowerASCII(char c) {
    return c >= 'A' && c <= 'Z' ? (char)(c - 'A' + 'a') : c;
}

static bool startsWithIgnoringCase(const char* text, const char* part) {
    for (; *part != '\0'; ++text, ++part) {
        if (*text == '\0' || lowerASCII(*text) != lowerASCII(*part)) {
            return false;
        }
    }
    return true;
}

bool TAContainsIgnoringCase(const char* text, const char* part) {
    for (; *text != '\0'; ++text) {
        if (startsWithIgnoringCase(text, part)) {
            return true;
        }
    }
    return *part == '\0';
}

bool TAPropertiesDescribeMouse(const TADeviceProperties* properties) {
    return strcmp(properties->accelerationType, "HIDMouseAcceleration") == 0 ||
           TAContainsIgnoringCase(properties->product, "Magic Mouse");
}

TADeviceKind TAClassifyDevice(bool isMouse, const TADeviceProperties* properties) {
    if (isMouse) {
        return TADeviceKindMagicMouse;
    }
    const bool trackpad = strcmp(properties->accelerationType, "HIDTrackpadAcceleration") == 0 ||
                          TAContainsIgnoringCase(properties->product, "Trackpad");
    if (!trackpad) {
        return TADeviceKindOther;
    }
    return properties->builtIn ? TADeviceKindBuiltInTrackpad : TADeviceKindMagicTrackpad;
}
