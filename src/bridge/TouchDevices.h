#ifndef TACTORA_BRIDGE_TOUCHDEVICES_H
#define TACTORA_BRIDGE_TOUCHDEVICES_H

/*
 * Every multitouch device at once: the bridge lists the devices the framework knows, tells each
 * one's kind and name, starts the ones the client chooses and hands each frame over with the
 * device it came from. This shares the bridge's one connection with TAStart (TouchBridge.h):
 * TAStartDevices replaces whatever TAStart began and the other way round, and TAStop ends
 * either.
 *
 * A device is known by the registry entry id of its service for as long as it stays connected.
 * One that leaves stays listed as missing; when a device of the same kind and name comes back
 * it takes that entry again, under its new id.
 *
 * Threads: every function here is called on the main thread. The frame callback runs on the
 * framework's thread.
 */

#include <stdbool.h>
#include <stdint.h>

#include "bridge/DeviceKind.h"
#include "bridge/FrameFilter.h"

#ifdef __cplusplus
extern "C" {
#endif

enum { TA_MAX_DEVICES = 16 };

typedef enum TADeviceState {
    TADeviceStateOff = 0,       /* connected, not in use */
    TADeviceStateConnected = 1, /* in use: started, frames flow */
    TADeviceStateMissing = 2,   /* seen earlier, gone now */
    TADeviceStateBlocked = 3,   /* chosen, but starting it failed; `error` holds the code */
} TADeviceState;

typedef struct TADeviceInfo {
    uint64_t id; /* registry entry id of the device's service; 0 when the registry can't tell */
    TADeviceKind kind;
    TADeviceState state;
    int32_t error; /* the failed start's code while blocked, 0 otherwise */
    /* The product name from the registry, UTF-8; empty when it has none. */
    char name[TA_DEVICE_NAME_SIZE];
} TADeviceInfo;

/*
 * Whether to use this connected device. Asked on the main thread for every connected device in
 * list order, whenever the list is brought up to date; a device may be asked many times.
 */
typedef bool (*TADeviceChoice)(void* context, const TADeviceInfo* device);

/*
 * Receives one frame of a device in use: the id of the device and its touching contacts (0 to
 * 16). The frame is valid only during the call. Count 0 means every finger on that device has
 * lifted. Runs on the framework's thread: copy the data and hand it on.
 */
typedef void (*TADeviceFrameCallback)(uint64_t device, const TAFrame* frame);

/*
 * Stops any earlier connection, loads the framework, lists the devices and starts the ones
 * `choose` accepts; their frames go to `client`. Returns 1 when the framework could be used
 * (even with no device), 0 otherwise. TAStatus then speaks for the Magic Mouse, with the keys
 * TAStart uses: "sensor.unavailable" or "sensor.incompatible" when the framework can't be
 * used; otherwise "sensor.connected" or "sensor.blocked" (TAStatusError holds the code) for the
 * first Magic Mouse in use, and "sensor.missing" when no Magic Mouse is in use.
 */
int32_t TAStartDevices(TADeviceFrameCallback client, TADeviceChoice choose, void* context);

/*
 * Brings the list up to date after devices came or went, or after the client changed its
 * choice: new devices are asked and started if chosen, gone ones are stopped and listed as
 * missing, devices no longer chosen are stopped, and a device that keeps running is not touched
 * at all. A blocked device is tried again only by the next TAStartDevices. Updates TAStatus as
 * TAStartDevices does. Returns 1 when something changed, 0 otherwise (also when nothing runs).
 */
int32_t TARefreshDevices(void);

/* How many devices are listed (0 to TA_MAX_DEVICES), missing ones included. */
int32_t TAKnownDeviceCount(void);

/* Fills `device` with the listed device at `index`; false when there is none. */
bool TAKnownDevice(int32_t index, TADeviceInfo* device);

/*
 * The id of the device in use that produced input with this sender id (an input event's
 * registry entry id of the service that sent it), or 0 when none did. The sender is matched to
 * the device of the same kind, and of the same name where several of that kind are in use.
 */
uint64_t TADeviceForSender(uint64_t senderID);

#ifdef __cplusplus
}
#endif

#endif
