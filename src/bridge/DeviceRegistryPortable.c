#include "bridge/BridgeTesting.h"
#include "bridge/DeviceRegistry.h"
#include "bridge/PortableDeviceList.h"

#include <stddef.h>

static TAPortableMouseTest mouseTest = NULL;

void TASetPortableMouseTest(TAPortableMouseTest test) {
    mouseTest = test;
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

bool TAIsMouseService(uint32_t service) {
    return service != 0 && mouseTest != NULL && mouseTest(service);
}

uint64_t TAServiceEntryID(uint32_t service) {
    return service;
}

bool TAIsMouseRegistryEntry(uint64_t entryID) {
    (void)entryID;
    return false;
}
