#ifndef TACTORA_BRIDGE_TOUCHDEVICES_H
#define TACTORA_BRIDGE_TOUCHDEVICES_H

/*
 * The multitouch devices beside the Magic Mouse. They share the bridge's one connection with
 * the mouse (TouchBridge.h): TAStart takes the first Magic Mouse for its client as always and,
 * once TAUseOtherDevices gave it a choice, also starts the other connected devices chosen and
 * hands their frames, with the device they came from, to a second client. TAStop ends them all.
 * Until a choice is given nothing but the mouse is ever started.
 *
 * With a choice given, the devices beside the mouse no longer depend on it: TAStart reports
 * frames flowing when only they run, and TARefreshDevices follows the mouse as it leaves and
 * comes back, without stopping them.
 *
 * The bridge lists every device the framework knows, the Magic Mouse included, with its kind and
 * name. A device is known by the registry entry id of its service for as long as it stays
 * connected. One that leaves stays listed as missing; when a device of the same kind and name
 * comes back it takes that entry again, under its new id. TAStart lists the devices anew.
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
 * Whether to use this connected device. Asked on the main thread, in list order, about every
 * connected device but the Magic Mouse that TAStart took, whenever TAStart or TARefreshDevices
 * brings the list up to date; a device may be asked many times.
 */
typedef bool (*TADeviceChoice)(void* context, const TADeviceInfo* device);

/*
 * Receives one frame of a device in use beside the mouse: the id of the device and its touching
 * contacts (0 to 16, with their shapes). The frame is valid only during the call. Count 0 means
 * every finger on that device has lifted. Runs on the framework's thread: copy the data and
 * hand it on.
 */
typedef void (*TADeviceFrameCallback)(uint64_t device, const TAFrame* frame);

/*
 * From now on TAStart and TARefreshDevices also start the connected devices `choose` accepts
 * (asked with `context`) and hand their frames to `client`. Starts nothing itself. A null
 * `choose` takes the choice back: the devices in use beside the mouse stop at once, so that
 * neither `choose` nor `context` is used again, and only the mouse is started from then on.
 */
void TAUseOtherDevices(TADeviceFrameCallback client, TADeviceChoice choose, void* context);

/*
 * Brings the devices beside the mouse up to date after devices came or went, or after the
 * choice changed: new devices are listed, asked and started if chosen, gone ones are stopped and
 * listed as missing, devices no longer chosen are stopped, and a device whose use goes on is not
 * touched at all. A blocked device is tried again only by the next TAStart.
 *
 * Without a choice it never touches the mouse's connection nor TAStatus; a mouse that left is
 * only listed as missing. With a choice it follows the mouse too: when TAStart's mouse has left
 * it is stopped and listed missing, TAConnectedDevice() becomes 0 and TAStatus
 * "sensor.missing"; when no mouse is TAStart's (none was found, or it left) and a Magic Mouse
 * that no choice uses is connected, it is started for TAStart's client, with TAConnectedDevice()
 * its id and TAStatus "sensor.connected", or "sensor.blocked" with TAStatusError() its code. A
 * blocked mouse stays TAStart's until it leaves. The devices beside the mouse run on throughout.
 *
 * Returns 1 when something changed, 0 otherwise (also while nothing runs).
 */
int32_t TARefreshDevices(void);

/* How many devices are listed (0 to TA_MAX_DEVICES), missing ones included. */
int32_t TAKnownDeviceCount(void);

/* Fills `device` with the listed device at `index`; false when there is none. */
bool TAKnownDevice(int32_t index, TADeviceInfo* device);

/*
 * The id of the device in use beside the mouse that produced input with this sender id (the
 * registry entry id of the service that sent an input event), or 0 when none did: 0 for the
 * Magic Mouse that TAStart took (TAIsMouseSender speaks for it) and for unknown senders. The
 * sender is matched to the device of the same kind, and of the same name where several of that
 * kind are in use.
 */
uint64_t TADeviceForSender(uint64_t senderID);

#ifdef __cplusplus
}
#endif

#endif
