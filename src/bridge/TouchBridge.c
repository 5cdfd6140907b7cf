#include "bridge/TouchBridge.h"

#include <stdatomic.h>
#include <stddef.h>
#include <stdio.h>

#include "bridge/BridgeTesting.h"
#include "bridge/DeviceRegistry.h"
#include "bridge/FrameFilter.h"
#include "bridge/LibraryLoader.h"
#include "bridge/MultitouchFunctions.h"

static const char systemFrameworkPath[] =
    "/System/Library/PrivateFrameworks/MultitouchSupport.framework/MultitouchSupport";

static const char* frameworkPath = systemFrameworkPath;
static void* library = NULL; /* loaded once, never closed */
static const void* devices = NULL;
static void* device = NULL;
static uint64_t deviceEntryID = 0; /* of `device` while frames flow */
/* Read on the framework's thread while TAStop may clear it on the main thread. */
static _Atomic(TAFrameCallback) client;
static void (*unreg)(void*, TAContactFrameHandler) = NULL;
static void (*stop)(void*) = NULL;
static char status[256] = "sensor.not_started";
static int32_t statusError = 0;

static void setStatus(const char* key) {
    snprintf(status, sizeof status, "%s", key);
}

static int frame(void* source, const void* contacts, int32_t count, double timestamp,
                 int32_t frameNumber) {
    (void)source;
    (void)timestamp;
    (void)frameNumber;
    TAFrame kept;
    if (!TAFilterFrame(contacts, count, &kept)) {
        return 0;
    }
    TAFrameCallback target = atomic_load(&client);
    if (target != NULL) {
        target(kept.count, kept.ids, kept.xs, kept.ys, kept.shapes);
    }
    return 0;
}

static void* firstMouse(const TAMultitouchFunctions* functions, const void* list) {
    int64_t count = TADeviceCount(list);
    for (int64_t index = 0; index < count; ++index) {
        void* candidate = TADeviceAt(list, index);
        if (TAIsMouseService(functions->getService(candidate))) {
            return candidate;
        }
    }
    return NULL;
}

int32_t TAStart(TAFrameCallback newClient) {
    TAStop();
    statusError = 0;
    if (library == NULL) {
        library = TAOpenLibrary(frameworkPath);
    }
    if (library == NULL) {
        setStatus("sensor.unavailable");
        return 0;
    }
    TAMultitouchFunctions functions;
    if (!TALookUpMultitouchFunctions(library, &functions)) {
        setStatus("sensor.incompatible");
        return 0;
    }
    devices = functions.createList();
    device = devices != NULL ? firstMouse(&functions, devices) : NULL;
    if (device == NULL) {
        setStatus("sensor.missing");
        return 0;
    }
    atomic_store(&client, newClient);
    unreg = functions.unregisterHandler;
    stop = functions.stop;
    functions.registerHandler(device, frame);
    int32_t code = functions.start(device, 0);
    if (code == 0) {
        deviceEntryID = TAServiceEntryID(functions.getService(device));
        setStatus("sensor.connected");
        return 1;
    }
    TAStop();
    statusError = code;
    setStatus("sensor.blocked");
    return 0;
}

void TAStop(void) {
    deviceEntryID = 0;
    if (device != NULL) {
        unreg(device, frame);
        stop(device);
        device = NULL;
    }
    if (devices != NULL) {
        TAReleaseDevices(devices);
        devices = NULL;
    }
    atomic_store(&client, NULL);
}

const char* TAStatus(void) {
    return status;
}

int32_t TAStatusError(void) {
    return statusError;
}

uint64_t TAConnectedDevice(void) {
    return deviceEntryID;
}

bool TAIsMouseSender(uint64_t senderID) {
    return senderID != 0 && TAIsMouseRegistryEntry(senderID);
}

void TASetFrameworkPath(const char* path) {
    TAStop();
    frameworkPath = path != NULL ? path : systemFrameworkPath;
    library = NULL;
}
