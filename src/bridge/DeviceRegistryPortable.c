#include <stddef.h>
#include <string.h>

#include "bridge/BridgeTesting.h"
#include "bridge/DeviceRegistry.h"
#include "bridge/PortableDeviceList.h"

static TAPortableMouseTest mouseTest = NULL;
static TAPortableRegistry registry = NULL;

void TASetPortableMouseTest(TAPortableMouseTest test) {
    mouseTest = test;
}

void TASetPortableRegistry(TAPortableRegistry lookup) {
    registry = lookup;
}

int64_t TADeviceCount(const void* devices) {
    const TAPortableDeviceList* list = devices;
    return list->count;
}

void* TADeviceAt(const void* devices, int64_t index) {
    const TAPortableDeviceList* list = devices;
    return list->devices[index];
}

void TAReleaseDevices(const void* devices) {
    const TAPortableDeviceList* list = devices;
    if (list->release != NULL) {
        list->release(list);
    }
}

static bool lookUp(uint64_t entryID, TADeviceProperties* properties) {
    memset(properties, 0, sizeof *properties);
    return entryID != 0 && registry != NULL && registry(entryID, properties);
}

bool TAIsMouseService(uint32_t service) {
    if (service == 0) {
        return false;
    }
    if (mouseTest != NULL) {
        return mouseTest(service);
    }
    TADeviceProperties properties;
    return lookUp(service, &properties) && TAPropertiesDescribeMouse(&properties);
}

/* Input events carry no sender here, so no sender is ever the mouse. */
bool TAIsMouseRegistryEntry(uint64_t entryID) {
    (void)entryID;
    return false;
}

uint64_t TAServiceEntryID(uint32_t service) {
    return service;
}

bool TADescribeService(uint32_t service, TADeviceKind* kind, char* name) {
    if (service == 0) {
        return false;
    }
    TADeviceProperties properties;
    lookUp(service, &properties);
    *kind = TAClassifyDevice(TAIsMouseService(service), &properties);
    memcpy(name, properties.product, TA_DEVICE_NAME_SIZE);
    name[TA_DEVICE_NAME_SIZE - 1] = '\0';
    return true;
}

bool TADescribeRegistryEntry(uint64_t entryID, TADeviceKind* kind, char* name) {
    TADeviceProperties properties;
    if (!lookUp(entryID, &properties)) {
        return false;
    }
    *kind = TAClassifyDevice(TAPropertiesDescribeMouse(&properties), &properties);
    memcpy(name, properties.product, TA_DEVICE_NAME_SIZE);
    name[TA_DEVICE_NAME_SIZE - 1] = '\0';
    return true;
}
