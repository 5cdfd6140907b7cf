#ifdef __APPLE__

#include "bridge/DeviceRegistry.h"

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#include <string.h>

int64_t TADeviceCount(const void* devices) {
    return CFArrayGetCount((CFArrayRef)devices);
}

void* TADeviceAt(const void* devices, int64_t index) {
    return (void*)CFArrayGetValueAtIndex((CFArrayRef)devices, (CFIndex)index);
}

void TAReleaseDevices(const void* devices) {
    CFRelease(devices);
}

/* The property of the service or its nearest ancestor that has it, or NULL; owned by the
 * caller. */
static CFTypeRef searchProperty(io_service_t service, CFStringRef key) {
    return IORegistryEntrySearchCFProperty(
        service, kIOServicePlane, key, kCFAllocatorDefault,
        kIORegistryIterateRecursively | kIORegistryIterateParents);
}

static bool isString(CFTypeRef value) {
    return value != NULL && CFGetTypeID(value) == CFStringGetTypeID();
}

static bool hasMouseAcceleration(io_service_t service) {
    CFTypeRef value = searchProperty(service, CFSTR("HIDPointerAccelerationType"));
    bool result = isString(value) && CFEqual(value, CFSTR("HIDMouseAcceleration"));
    if (value != NULL) {
        CFRelease(value);
    }
    return result;
}

static bool isNamedMagicMouse(io_service_t service) {
    CFTypeRef value = searchProperty(service, CFSTR("Product"));
    bool result = isString(value) &&
                  CFStringFind((CFStringRef)value, CFSTR("Magic Mouse"), kCFCompareCaseInsensitive)
                          .location != kCFNotFound;
    if (value != NULL) {
        CFRelease(value);
    }
    return result;
}

bool TAIsMouseService(uint32_t service) {
    if (service == IO_OBJECT_NULL) {
        return false;
    }
    return hasMouseAcceleration(service) || isNamedMagicMouse(service);
}

/* The service with this registry entry id, or the null service; released by the caller. */
static io_service_t serviceWithEntryID(uint64_t entryID) {
    /* IOServiceGetMatchingService consumes the matching dictionary. */
    return IOServiceGetMatchingService(kIOMainPortDefault, IORegistryEntryIDMatching(entryID));
}

bool TAIsMouseRegistryEntry(uint64_t entryID) {
    io_service_t service = serviceWithEntryID(entryID);
    bool result = TAIsMouseService(service);
    if (service != IO_OBJECT_NULL) {
        IOObjectRelease(service);
    }
    return result;
}

uint64_t TAServiceEntryID(uint32_t service) {
    uint64_t id = 0;
    if (service == IO_OBJECT_NULL ||
        IORegistryEntryGetRegistryEntryID(service, &id) != KERN_SUCCESS) {
        return 0;
    }
    return id;
}

/* Copies a string property as UTF-8, as many whole characters as fit; empty when it is not a
 * string. */
static void copyStringProperty(io_service_t service, CFStringRef key, char* buffer, CFIndex size) {
    buffer[0] = '\0';
    CFTypeRef value = searchProperty(service, key);
    if (isString(value)) {
        CFStringRef text = value;
        CFIndex used = 0;
        CFStringGetBytes(text, CFRangeMake(0, CFStringGetLength(text)), kCFStringEncodingUTF8, 0,
                         false, (UInt8*)buffer, size - 1, &used);
        buffer[used] = '\0';
    }
    if (value != NULL) {
        CFRelease(value);
    }
}

/* "Built-In" is documented as a number; a Boolean is taken too. */
static bool isBuiltIn(io_service_t service) {
    CFTypeRef value = searchProperty(service, CFSTR("Built-In"));
    bool result = false;
    if (value != NULL && CFGetTypeID(value) == CFBooleanGetTypeID()) {
        result = CFBooleanGetValue(value);
    } else if (value != NULL && CFGetTypeID(value) == CFNumberGetTypeID()) {
        int64_t number = 0;
        result = CFNumberGetValue(value, kCFNumberSInt64Type, &number) && number != 0;
    }
    if (value != NULL) {
        CFRelease(value);
    }
    return result;
}

/*
 * The kind comes first from "HIDPointerAccelerationType" (the mouse's or the trackpad's value),
 * then from the product name, and the built-in trackpad is told from the Magic Trackpad by
 * "Built-In"; where each surface's registry subtree carries these is confirmed by the first run
 * on a Mac.
 */
bool TADescribeService(uint32_t service, TADeviceKind* kind, char* name) {
    if (service == IO_OBJECT_NULL) {
        return false;
    }
    TADeviceProperties properties;
    copyStringProperty(service, CFSTR("HIDPointerAccelerationType"), properties.accelerationType,
                       sizeof properties.accelerationType);
    copyStringProperty(service, CFSTR("Product"), properties.product, sizeof properties.product);
    properties.builtIn = isBuiltIn(service);
    *kind = TAClassifyDevice(TAIsMouseService(service), &properties);
    memcpy(name, properties.product, TA_DEVICE_NAME_SIZE);
    return true;
}

bool TADescribeRegistryEntry(uint64_t entryID, TADeviceKind* kind, char* name) {
    io_service_t service = serviceWithEntryID(entryID);
    bool result = TADescribeService(service, kind, name);
    if (service != IO_OBJECT_NULL) {
        IOObjectRelease(service);
    }
    return result;
}

#endif
