#ifndef TACTORA_BRIDGE_MULTITOUCHFUNCTIONS_H
#define TACTORA_BRIDGE_MULTITOUCHFUNCTIONS_H

/*
 * The six functions of the private multitouch framework that the bridge uses. Looked up and
 * called on the main thread; only the frame handler runs on the framework's thread.
 */

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Called by the framework on its own thread for every frame of a device. The framework does
 * not say what it does with the result; the bridge answers 0.
 */
typedef int (*TAContactFrameHandler)(void* device, const void* contacts, int32_t count,
                                     double timestamp, int32_t frameNumber);

typedef struct TAMultitouchFunctions {
    /* A list of every multitouch device, owned by the caller (see DeviceRegistry.h). */
    const void* (*createList)(void);
    /* The registry service of a device. */
    uint32_t (*getService)(void* device);
    void (*registerHandler)(void* device, TAContactFrameHandler handler);
    /* 0 on success, an error code otherwise. */
    int32_t (*start)(void* device, int32_t mode);
    void (*unregisterHandler)(void* device, TAContactFrameHandler handler);
    void (*stop)(void* device);
} TAMultitouchFunctions;

/* Looks up all six functions in the loaded framework; false when any is missing. */
bool TALookUpMultitouchFunctions(void* library, TAMultitouchFunctions* functions);

#ifdef __cplusplus
}
#endif

#endif
