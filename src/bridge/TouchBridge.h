#ifndef TACTORA_BRIDGE_TOUCHBRIDGE_H
#define TACTORA_BRIDGE_TOUCHBRIDGE_H

/*
 * The program's only contact with the mouse's touch surface, and the Dock notification call.
 *
 * The bridge loads the system's private multitouch framework at run time, listens to the first
 * multitouch device that is a mouse and hands each frame's touching contacts to one client
 * callback. Its state is process-wide; there is one connection and one client at a time. The
 * same connection can also take the other multitouch devices (TouchDevices.h).
 *
 * Threads: TAStart, TAStop, TAStatus, TAStatusError, TAConnectedDevice, TAIsMouseSender,
 * TADesktopAction and TADockNotification are called on the main thread. The client callback
 * runs on the framework's own thread.
 */

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Receives the contacts of one frame that touch the surface: `count` (0 to 16) identifiers,
 * normalised positions and shapes (four values per contact: size, angle, major and minor axis).
 * The arrays are valid only during the call. Count 0 means every finger has lifted. Runs on the
 * framework's thread: copy the data and hand it on.
 */
typedef void (*TAFrameCallback)(int32_t count, const int32_t* ids, const float* xs, const float* ys,
                                const float* shapes);

/*
 * Stops any earlier connection, then connects to the mouse and delivers its frames to
 * `client`. Also starts the other devices chosen through TAUseOtherDevices, whatever became of
 * the mouse. Returns 1 when frames flow: from the mouse or, once a choice was given, from at
 * least one chosen device beside it, so that a Mac whose only surface in use is a trackpad can
 * run; 0 otherwise. TAStatus and TAStatusError speak for the mouse alone, frames or not.
 */
int32_t TAStart(TAFrameCallback client);

/*
 * Ends the connection, the devices beside the mouse included; safe when nothing runs. The
 * status key is left as it was.
 */
void TAStop(void);

/*
 * The current status key of the mouse: "sensor.not_started", "sensor.unavailable",
 * "sensor.incompatible", "sensor.missing", "sensor.blocked" or "sensor.connected". Set by
 * TAStart and, once a choice was given, by TARefreshDevices as the mouse comes and goes. Never
 * null; valid until the next TAStart or TARefreshDevices.
 */
const char* TAStatus(void);

/*
 * The code returned by the mouse's start that failed, in the last TAStart or, once a choice was
 * given, in the refresh that took a newly arrived mouse; 0 otherwise.
 */
int32_t TAStatusError(void);

/*
 * The registry entry id of the mouse whose frames flow to TAStart's client (see
 * DeviceRegistry.h), 0 while none is connected. The devices beside it are listed in
 * TouchDevices.h.
 */
uint64_t TAConnectedDevice(void);

/*
 * Whether the input device with this registry entry id is a mouse of the kind the bridge
 * listens to. False for 0, and always false on systems without the device registry.
 */
bool TAIsMouseSender(uint64_t senderID);

/*
 * Asks the Dock to show the desktop (`desktop` non-zero) or Mission Control (0). Returns 0 on
 * success, the Dock's status otherwise, or -1 when the Dock call is not available. A missing
 * library or symbol is looked up again on the next call.
 */
int32_t TADesktopAction(int32_t desktop);

/*
 * Sends the Dock the notification with this name (such as App Exposé's
 * "com.apple.expose.front.awake"); the same outcome as TADesktopAction, and -1 for a null name.
 */
int32_t TADockNotification(const char* name);

#ifdef __cplusplus
}
#endif

#endif
