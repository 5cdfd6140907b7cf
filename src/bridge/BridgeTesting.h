#ifndef TACTORA_BRIDGE_BRIDGETESTING_H
#define TACTORA_BRIDGE_BRIDGETESTING_H

/*
 * Hooks that let the bridge's tests run it against stand-in libraries. Not for the program.
 * Called on the main thread, while no connection runs.
 */

#include <stdbool.h>
#include <stdint.h>

#include "bridge/DeviceKind.h"

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Loads the multitouch framework from `path` (NULL: the system path) on the next TAStart.
 * Stops any connection and forgets the library loaded so far, without closing it. The string
 * must outlive its use.
 */
void TASetFrameworkPath(const char* path);

/*
 * Loads the Dock call from `path` (NULL: the system path) on the next TADesktopAction, and
 * forgets the library and function found so far. The string must outlive its use.
 */
void TASetDockLibraryPath(const char* path);

/*
 * Off Apple systems only: the mouse test applied to the services of a portable device list.
 * NULL (the default) finds no mouse.
 */
typedef bool (*TAPortableMouseTest)(uint32_t service);
void TASetPortableMouseTest(TAPortableMouseTest test);

/*
 * Off Apple systems only: the registry that the bridge asks for a device's kind and name, and
 * for the device behind an input event's sender id. A service number is its own registry entry
 * id there. The lookup fills the properties of the entry and answers whether it exists; the
 * mouse test uses them too unless TASetPortableMouseTest installed one of its own. NULL (the
 * default) knows no entry.
 */
typedef bool (*TAPortableRegistry)(uint64_t entryID, TADeviceProperties* properties);
void TASetPortableRegistry(TAPortableRegistry lookup);

#ifdef __cplusplus
}
#endif

#endif
