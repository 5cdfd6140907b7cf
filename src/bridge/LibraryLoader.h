#ifndef TACTORA_BRIDGE_LIBRARYLOADER_H
#define TACTORA_BRIDGE_LIBRARYLOADER_H

/* Run-time loading of system libraries for the bridge. Called on the main thread. */

#ifdef __cplusplus
extern "C" {
#endif

/* Any function; cast the result of TALookUpFunction to the real type before calling it. */
typedef void (*TAAnyFunction)(void);

/* Opens the library at `path` with immediate, local binding. NULL when it can't be loaded. */
void* TAOpenLibrary(const char* path);

/* The function that `library` exports as `name`, or NULL. */
TAAnyFunction TALookUpFunction(void* library, const char* name);

#ifdef __cplusplus
}
#endif

#endif
