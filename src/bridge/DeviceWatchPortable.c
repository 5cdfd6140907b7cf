#include "bridge/DeviceWatch.h"

#include <stddef.h>

/* No device registry here: watching is unavailable. */
TADeviceWatch* TAWatchDevices(TADeviceChange change, void* context) {
    (void)change;
    (void)context;
    return NULL;
}

TADeviceWatch* TAWatchMultitouchDevices(TADeviceChange change, void* context) {
    (void)change;
    (void)context;
    return NULL;
}

void TAStopWatchingDevices(TADeviceWatch* watch) {
    (void)watch;
}
