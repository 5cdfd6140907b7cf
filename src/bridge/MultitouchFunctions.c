#include "bridge/MultitouchFunctions.h"

#include "bridge/LibraryLoader.h"

bool TALookUpMultitouchFunctions(void* library, TAMultitouchFunctions* functions) {
    TAAnyFunction createList = TALookUpFunction(library, "MTDeviceCreateList");
    TAAnyFunction getService = TALookUpFunction(library, "MTDeviceGetService");
    TAAnyFunction registerHandler = TALookUpFunction(library, "MTRegisterContactFrameCallback");
    TAAnyFunction start = TALookUpFunction(library, "MTDeviceStart");
    TAAnyFunction unregisterHandler = TALookUpFunction(library, "MTUnregisterContactFrameCallback");
    TAAnyFunction stop = TALookUpFunction(library, "MTDeviceStop");
    if (!createList || !getService || !registerHandler || !start || !unregisterHandler || !stop) {
        return false;
    }
    functions->createList = (const void* (*)(void))createList;
    functions->getService = (uint32_t(*)(void*))getService;
    functions->registerHandler = (void (*)(void*, TAContactFrameHandler))registerHandler;
    functions->start = (int32_t(*)(void*, int32_t))start;
    functions->unregisterHandler = (void (*)(void*, TAContactFrameHandler))unregisterHandler;
    functions->stop = (void (*)(void*))stop;
    return true;
}
