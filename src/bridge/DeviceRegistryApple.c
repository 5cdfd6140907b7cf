#ifdef __APPLE__

#include "bridge/DeviceRegistry.h"

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>

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

uint64_t TAServiceEntryID(uint32_t service) {
    uint64_t id = 0;
    if (service == IO_OBJECT_NULL ||
        IORegistryEntryGetRegistryEntryID(service, &id) != KERN_SUCCESS) {
        return 0;
    }
    return id;
}

bool TAIsMouseRegistryEntry(uint64_t entryID) {
    /* IOServiceGetMatchingService consumes the matching dictionary. */
    io_service_t service =
        IOServiceGetMatchingService(kIOMainPortDefault, IORegistryEntryIDMatching(entryID));
    bool result = TAIsMouseService(service);
    if (service != IO_OBJECT_NULL) {
        IOObjectRelease(service);
    }
    return result;
}

#endif
