#ifndef TACTORA_BRIDGE_DEVICEREGISTRY_H
#define TACTORA_BRIDGE_DEVICEREGISTRY_H

/*
 * The system side of device discovery: walking the framework's device list and the mouse test.
 * On Apple systems the list is a CoreFoundation array and the test asks the IOKit registry;
 * elsewhere the list is a TAPortableDeviceList and the registry is whatever
 * TASetPortableRegistry (and, for the mouse test alone, TASetPortableMouseTest) installed.
 * Called on the main thread.
 */

#include <stdbool.h>
#include <stdint.h>

#include "bridge/DeviceKind.h"

#ifdef __cplusplus
extern "C" {
#endif

int64_t TADeviceCount(const void* devices);
void* TADeviceAt(const void* devices, int64_t index);
void TAReleaseDevices(const void* devices);

/*
 * Whether this registry service, or one of its ancestors, describes a mouse: its pointer
 * acceleration type is "HIDMouseAcceleration", or else its product name contains
 * "Magic Mouse". False for the null service (0).
 */
bool TAIsMouseService(uint32_t service);

/*
 * The registry entry id of this service, 0 for the null service. Off Apple systems the service
 * number itself stands for its id.
 */
uint64_t TAServiceEntryID(uint32_t service);

/* The mouse test for the service with this registry entry id (non-zero). */
bool TAIsMouseRegistryEntry(uint64_t entryID);

/*
 * Fills `kind` and `name` (TA_DEVICE_NAME_SIZE bytes, UTF-8, cut at a character boundary,
 * empty when the registry has no product name) for this service, searching its ancestors for
 * the properties. False, leaving both untouched, for the null service.
 */
bool TADescribeService(uint32_t service, TADeviceKind* kind, char* name);

/* The same for the entry with this registry entry id; false when no such entry exists. */
bool TADescribeRegistryEntry(uint64_t entryID, TADeviceKind* kind, char* name);

#ifdef __cplusplus
}
#endif

#endif
