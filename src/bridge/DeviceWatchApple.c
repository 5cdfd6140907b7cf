#ifdef __APPLE__

#include "bridge/DeviceWatch.h"

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#include <stdbool.h>
#include <stdlib.h>

#include "bridge/DeviceRegistry.h"

/* More devices than anyone connects at once; further ones are still reported when they arrive. */
enum { knownCapacity = 16 };

struct TADeviceWatch {
    TADeviceChange change;
    void* context;
    bool everyDevice; /* false: mice only */
    IONotificationPortRef port;
    io_iterator_t arrivals;
    io_iterator_t removals;
    /* Registry entry ids of the devices seen: a removed service can no longer be asked whether
     * it was a mouse, so a removal is reported only for an id seen arriving. */
    uint64_t known[knownCapacity];
    int32_t knownCount;
};

static void remember(TADeviceWatch* watch, uint64_t id) {
    for (int32_t i = 0; i < watch->knownCount; ++i) {
        if (watch->known[i] == id) {
            return;
        }
    }
    if (id != 0 && watch->knownCount < knownCapacity) {
        watch->known[watch->knownCount++] = id;
    }
}

static bool forget(TADeviceWatch* watch, uint64_t id) {
    for (int32_t i = 0; i < watch->knownCount; ++i) {
        if (watch->known[i] == id) {
            watch->known[i] = watch->known[--watch->knownCount];
            return true;
        }
    }
    return false;
}

/* Walks the new arrivals; `report` is false for the devices present at the start. */
static void takeArrivals(TADeviceWatch* watch, bool report) {
    io_service_t service;
    while ((service = IOIteratorNext(watch->arrivals)) != IO_OBJECT_NULL) {
        if (watch->everyDevice || TAIsMouseService(service)) {
            uint64_t id = TAServiceEntryID(service);
            remember(watch, id);
            if (report) {
                watch->change(watch->context, 1, id);
            }
        }
        IOObjectRelease(service);
    }
}

static void takeRemovals(TADeviceWatch* watch, bool report) {
    io_service_t service;
    while ((service = IOIteratorNext(watch->removals)) != IO_OBJECT_NULL) {
        uint64_t id = TAServiceEntryID(service);
        if (forget(watch, id) && report) {
            watch->change(watch->context, 0, id);
        }
        IOObjectRelease(service);
    }
}

static void arrived(void* refcon, io_iterator_t iterator) {
    (void)iterator;
    takeArrivals(refcon, true);
}

static void removed(void* refcon, io_iterator_t iterator) {
    (void)iterator;
    takeRemovals(refcon, true);
}

static TADeviceWatch* watchDevices(TADeviceChange change, void* context, bool everyDevice) {
    TADeviceWatch* watch = calloc(1, sizeof(TADeviceWatch));
    if (watch == NULL) {
        return NULL;
    }
    watch->change = change;
    watch->context = context;
    watch->everyDevice = everyDevice;
    watch->port = IONotificationPortCreate(kIOMainPortDefault);
    if (watch->port == NULL) {
        TAStopWatchingDevices(watch);
        return NULL;
    }
    CFRunLoopAddSource(CFRunLoopGetMain(), IONotificationPortGetRunLoopSource(watch->port),
                       kCFRunLoopCommonModes);
    /* Each call consumes its matching dictionary. */
    kern_return_t first = IOServiceAddMatchingNotification(
        watch->port, kIOFirstMatchNotification, IOServiceMatching("AppleMultitouchDevice"), arrived,
        watch, &watch->arrivals);
    kern_return_t terminated = IOServiceAddMatchingNotification(
        watch->port, kIOTerminatedNotification, IOServiceMatching("AppleMultitouchDevice"), removed,
        watch, &watch->removals);
    if (first != KERN_SUCCESS || terminated != KERN_SUCCESS) {
        TAStopWatchingDevices(watch);
        return NULL;
    }
    /* Emptying both iterators arms the notifications. */
    takeArrivals(watch, false);
    takeRemovals(watch, false);
    return watch;
}

TADeviceWatch* TAWatchDevices(TADeviceChange change, void* context) {
    return watchDevices(change, context, false);
}

TADeviceWatch* TAWatchMultitouchDevices(TADeviceChange change, void* context) {
    return watchDevices(change, context, true);
}

void TAStopWatchingDevices(TADeviceWatch* watch) {
    if (watch == NULL) {
        return;
    }
    if (watch->arrivals != IO_OBJECT_NULL) {
        IOObjectRelease(watch->arrivals);
    }
    if (watch->removals != IO_OBJECT_NULL) {
        IOObjectRelease(watch->removals);
    }
    if (watch->port != NULL) {
        CFRunLoopRemoveSource(CFRunLoopGetMain(), IONotificationPortGetRunLoopSource(watch->port),
                              kCFRunLoopCommonModes);
        IONotificationPortDestroy(watch->port);
    }
    free(watch);
}

#endif
