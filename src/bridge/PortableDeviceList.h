#ifndef TACTORA_BRIDGE_PORTABLEDEVICELIST_H
#define TACTORA_BRIDGE_PORTABLEDEVICELIST_H

/*
 * Off Apple systems there is no multitouch framework; a library that stands in for it returns
 * its device list in this form, and the bridge gives it back through `release`.
 */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct TAPortableDeviceList {
    int64_t count;
    void* const* devices;
    void (*release)(const struct TAPortableDeviceList* list);
} TAPortableDeviceList;

#ifdef __cplusplus
}
#endif

#endif
