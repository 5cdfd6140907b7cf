#ifndef TACTORA_BRIDGE_DEVICEWATCH_H
#define TACTORA_BRIDGE_DEVICEWATCH_H

/*
 * Watches the IOKit registry for multitouch devices arriving and leaving (those that pass the
 * bridge's mouse test, or every one), through matching notifications whose run-loop source is
 * on the main run loop (in the common modes). Devices present when watching starts are taken as
 * known, not reported. On systems without the IOKit registry watching is unavailable: both
 * watches return NULL.
 *
 * Threads: everything, the callback included, runs on the main thread.
 */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Called once per watched device that arrived (`arrived` 1) or left (`arrived` 0), with its
 * registry entry id.
 */
typedef void (*TADeviceChange)(void* context, int32_t arrived, uint64_t entryID);

typedef struct TADeviceWatch TADeviceWatch;

/* Starts watching; NULL when watching is unavailable or the system refused. */
TADeviceWatch* TAWatchDevices(TADeviceChange change, void* context);

/*
 * The same for every multitouch device, whatever its kind: for keeping the bridge's device
 * list current (TARefreshDevices) as trackpads and mice come and go.
 */
TADeviceWatch* TAWatchMultitouchDevices(TADeviceChange change, void* context);

/* Stops watching and frees everything either watch made; NULL is ignored. */
void TAStopWatchingDevices(TADeviceWatch* watch);

#ifdef __cplusplus
}
#endif

#endif
