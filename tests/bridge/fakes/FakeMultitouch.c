#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "FakeMultitouchControls.h"
#include "bridge/MultitouchFunctions.h"
#include "bridge/PortableDeviceList.h"

enum { MAX_DEVICES = 16, MAX_SENDERS = 16 };

/* Devices keep their address for the whole test, like objects the framework still holds. */
typedef struct FakeDevice {
    uint32_t service;
    bool isMouse;
    bool listed;
    bool started;
    bool hasOwnStartResult;
    int32_t startResult;
    TADeviceProperties properties;
    TAContactFrameHandler handler; /* registered last on this device */
} FakeDevice;

typedef struct Sender {
    uint64_t id;
    uint32_t service;
} Sender;

/* A list is a snapshot of the devices listed when it was made. */
typedef struct FakeList {
    TAPortableDeviceList list;
    void* devices[MAX_DEVICES];
} FakeList;

static FakeDevice devices[MAX_DEVICES];
static int32_t deviceCount = 0;
static Sender senders[MAX_SENDERS];
static int32_t senderCount = 0;
static bool listAvailable = true;
static int32_t startResult = 0;
static TAContactFrameHandler lastHandler = NULL;
static void* lastHandlerDevice = NULL;
static int32_t frameNumber = 0;
static FakeMultitouchLog activity;

static FakeDevice* deviceWithService(uint32_t service) {
    for (int32_t index = deviceCount - 1; index >= 0; --index) {
        if (devices[index].service == service) {
            return &devices[index];
        }
    }
    return NULL;
}

static uint32_t serviceOf(void* device) {
    return ((const FakeDevice*)device)->service;
}

#ifndef FAKE_WITHOUT_MTDeviceCreateList
static void releaseList(const TAPortableDeviceList* list) {
    ++activity.listsReleased;
    free((void*)list);
}

const void* MTDeviceCreateList(void) {
    if (!listAvailable) {
        return NULL;
    }
    FakeList* made = calloc(1, sizeof(FakeList));
    if (made == NULL) {
        abort();
    }
    for (int32_t index = 0; index < deviceCount; ++index) {
        if (devices[index].listed) {
            made->devices[made->list.count++] = &devices[index];
        }
    }
    made->list.devices = made->devices;
    made->list.release = releaseList;
    ++activity.listsCreated;
    return &made->list;
}
#endif

#ifndef FAKE_WITHOUT_MTDeviceGetService
uint32_t MTDeviceGetService(void* device) {
    return serviceOf(device);
}
#endif

#ifndef FAKE_WITHOUT_MTRegisterContactFrameCallback
void MTRegisterContactFrameCallback(void* device, TAContactFrameHandler handler) {
    ++activity.registrations;
    activity.handlerRegistered = true;
    lastHandler = handler;
    lastHandlerDevice = device;
    ((FakeDevice*)device)->handler = handler;
}
#endif

#ifndef FAKE_WITHOUT_MTDeviceStart
int32_t MTDeviceStart(void* device, int32_t mode) {
    FakeDevice* fake = device;
    ++activity.starts;
    activity.startMode = mode;
    activity.startedService = fake->service;
    const int32_t result = fake->hasOwnStartResult ? fake->startResult : startResult;
    fake->started = result == 0;
    return result;
}
#endif

#ifndef FAKE_WITHOUT_MTUnregisterContactFrameCallback
void MTUnregisterContactFrameCallback(void* device, TAContactFrameHandler handler) {
    (void)device;
    (void)handler;
    ++activity.unregistrations;
    activity.handlerRegistered = false;
}
#endif

#ifndef FAKE_WITHOUT_MTDeviceStop
void MTDeviceStop(void* device) {
    ++activity.stops;
    activity.stoppedService = serviceOf(device);
    ((FakeDevice*)device)->started = false;
}
#endif

static void reset(void) {
    memset(devices, 0, sizeof devices);
    deviceCount = 0;
    senderCount = 0;
    listAvailable = true;
    startResult = 0;
    lastHandler = NULL;
    lastHandlerDevice = NULL;
    frameNumber = 0;
    activity = (FakeMultitouchLog){0};
}

static void addDescribedDevice(uint32_t service, const char* accelerationType, const char* product,
                               bool builtIn) {
    if (deviceCount == MAX_DEVICES) {
        return;
    }
    FakeDevice* device = &devices[deviceCount++];
    *device = (FakeDevice){.service = service, .listed = true};
    snprintf(device->properties.accelerationType, sizeof device->properties.accelerationType, "%s",
             accelerationType);
    snprintf(device->properties.product, sizeof device->properties.product, "%s", product);
    device->properties.builtIn = builtIn;
}

static void addDevice(uint32_t service, bool isMouse) {
    addDescribedDevice(service, isMouse ? "HIDMouseAcceleration" : "", "", false);
    if (deviceCount > 0 && devices[deviceCount - 1].service == service) {
        devices[deviceCount - 1].isMouse = isMouse;
    }
}

static void removeDevice(uint32_t service) {
    FakeDevice* device = deviceWithService(service);
    if (device != NULL) {
        device->listed = false;
    }
}

static void setListAvailable(bool available) {
    listAvailable = available;
}

static void setStartResult(int32_t code) {
    startResult = code;
}

static void setDeviceStartResult(uint32_t service, int32_t code) {
    FakeDevice* device = deviceWithService(service);
    if (device != NULL) {
        device->hasOwnStartResult = true;
        device->startResult = code;
    }
}

static bool serviceIsMouse(uint32_t service) {
    const FakeDevice* device = deviceWithService(service);
    return device != NULL && device->isMouse;
}

static bool registry(uint64_t entryID, TADeviceProperties* properties) {
    uint64_t service = entryID;
    for (int32_t index = 0; index < senderCount; ++index) {
        if (senders[index].id == entryID) {
            service = senders[index].service;
        }
    }
    const FakeDevice* device = service <= UINT32_MAX ? deviceWithService((uint32_t)service) : NULL;
    if (device == NULL) {
        return false;
    }
    *properties = device->properties;
    return true;
}

static void addSender(uint64_t senderID, uint32_t service) {
    if (senderCount < MAX_SENDERS) {
        senders[senderCount++] = (Sender){senderID, service};
    }
}

static bool deliverFrame(const void* contacts, int32_t count) {
    if (lastHandler == NULL) {
        return false;
    }
    lastHandler(lastHandlerDevice, contacts, count, 0.0, frameNumber++);
    return true;
}

static bool deliverDeviceFrame(uint32_t service, const void* contacts, int32_t count) {
    FakeDevice* device = deviceWithService(service);
    if (device == NULL || device->handler == NULL) {
        return false;
    }
    device->handler(device, contacts, count, 0.0, frameNumber++);
    return true;
}

static bool isStarted(uint32_t service) {
    const FakeDevice* device = deviceWithService(service);
    return device != NULL && device->started;
}

static const FakeMultitouchControls controls = {
    reset,
    addDevice,
    addDescribedDevice,
    removeDevice,
    setListAvailable,
    setStartResult,
    setDeviceStartResult,
    serviceIsMouse,
    registry,
    addSender,
    deliverFrame,
    deliverDeviceFrame,
    isStarted,
    &activity,
};

const FakeMultitouchControls* fakeMultitouchControls(void) {
    return &controls;
}
