#include <stddef.h>

#include "FakeMultitouchControls.h"
#include "bridge/MultitouchFunctions.h"
#include "bridge/PortableDeviceList.h"

enum { MAX_DEVICES = 8 };

typedef struct FakeDevice {
    uint32_t service;
    bool isMouse;
} FakeDevice;

static FakeDevice devices[MAX_DEVICES];
static void* devicePointers[MAX_DEVICES];
static int64_t deviceCount = 0;
static bool listAvailable = true;
static int32_t startResult = 0;
static TAContactFrameHandler lastHandler = NULL;
static void* lastHandlerDevice = NULL;
static int32_t frameNumber = 0;
static FakeMultitouchLog activity;

static uint32_t serviceOf(void* device) {
    return ((const FakeDevice*)device)->service;
}

#ifndef FAKE_WITHOUT_MTDeviceCreateList
static void releaseList(const TAPortableDeviceList* list) {
    (void)list;
    ++activity.listsReleased;
}

const void* MTDeviceCreateList(void) {
    if (!listAvailable) {
        return NULL;
    }
    static TAPortableDeviceList list = {0, devicePointers, releaseList};
    ++activity.listsCreated;
    list.count = deviceCount;
    return &list;
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
}
#endif

#ifndef FAKE_WITHOUT_MTDeviceStart
int32_t MTDeviceStart(void* device, int32_t mode) {
    ++activity.starts;
    activity.startMode = mode;
    activity.startedService = serviceOf(device);
    return startResult;
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
}
#endif

static void reset(void) {
    deviceCount = 0;
    listAvailable = true;
    startResult = 0;
    lastHandler = NULL;
    lastHandlerDevice = NULL;
    frameNumber = 0;
    activity = (FakeMultitouchLog){0};
}

static void addDevice(uint32_t service, bool isMouse) {
    if (deviceCount == MAX_DEVICES) {
        return;
    }
    devices[deviceCount] = (FakeDevice){service, isMouse};
    devicePointers[deviceCount] = &devices[deviceCount];
    ++deviceCount;
}

static void setListAvailable(bool available) {
    listAvailable = available;
}

static void setStartResult(int32_t code) {
    startResult = code;
}

static bool serviceIsMouse(uint32_t service) {
    for (int64_t index = 0; index < deviceCount; ++index) {
        if (devices[index].service == service) {
            return devices[index].isMouse;
        }
    }
    return false;
}

static bool deliverFrame(const void* contacts, int32_t count) {
    if (lastHandler == NULL) {
        return false;
    }
    lastHandler(lastHandlerDevice, contacts, count, 0.0, frameNumber++);
    return true;
}

static const FakeMultitouchControls controls = {
    reset, addDevice, setListAvailable, setStartResult, serviceIsMouse, deliverFrame, &activity,
};

const FakeMultitouchControls* fakeMultitouchControls(void) {
    return &controls;
}
