#ifndef TACTORA_BRIDGE_BRIDGETESTING_H
#define TACTORA_BRIDGE_BRIDGETESTING_H

/*
 * Hooks that let the bridge's tests run it against stand-in libraries. Not for the program.
 * Called on the main thread, while no connection runs.
 */

#include <stdbool.h>
#include <stdint.h>

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

#ifdef __cplusplus
}
#endif

#endif
