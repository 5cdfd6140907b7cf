#ifndef TACTORA_TESTS_FAKEMULTITOUCHCONTROLS_H
#define TACTORA_TESTS_FAKEMULTITOUCHCONTROLS_H

/*
 * The stand-in multitouch framework that the bridge's tests load in place of the system's. It
 * exports the framework's six functions (a variant lacks one) and, under the name
 * "fakeMultitouchControls", a function that returns these controls. It stands in for the
 * device registry as well: each device's service number is its registry entry id. Main thread
 * only.
 */

#include <stdbool.h>
#include <stdint.h>

#include "bridge/DeviceKind.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct FakeMultitouchLog {
    int32_t listsCreated;
    int32_t listsReleased;
    int32_t registrations;
    int32_t unregistrations;
    int32_t starts;
    int32_t stops;
    int32_t startMode;
    uint32_t startedService; /* service of the device started last */
    uint32_t stoppedService; /* service of the device stopped last */
    bool handlerRegistered;  /* registered and not unregistered since */
} FakeMultitouchLog;

typedef struct FakeMultitouchControls {
    /* No devices, no senders, a device list, start result 0, a clean log. */
    void (*reset)(void);
    /*
     * Appends a device with this service to the device list (at most 16 devices over a test).
     * A mouse has the mouse's acceleration type; any other device has no properties.
     */
    void (*addDevice)(uint32_t service, bool isMouse);
    /* Appends a device whose registry entry has these properties. */
    void (*addDescribedDevice)(uint32_t service, const char* accelerationType, const char* product,
                               bool builtIn);
    /* Takes the device out of the lists made from now on; its object stays valid. */
    void (*removeDevice)(uint32_t service);
    /* Whether MTDeviceCreateList returns a list or NULL. */
    void (*setListAvailable)(bool available);
    /* The result of every device start, and of one device's starts. */
    void (*setStartResult)(int32_t code);
    void (*setDeviceStartResult)(uint32_t service, int32_t code);
    /* The mouse test for the bridge: true for the services of devices added as mice. */
    bool (*serviceIsMouse)(uint32_t service);
    /* The registry for the bridge: the properties of a device's service or of a sender. */
    bool (*registry)(uint64_t entryID, TADeviceProperties* properties);
    /* Input events of the device with this service carry `senderID`. */
    void (*addSender)(uint64_t senderID, uint32_t service);
    /*
     * Calls the handler registered last, even after it was unregistered, the way a frame
     * already under way would arrive. False when no handler was ever registered.
     */
    bool (*deliverFrame)(const void* contacts, int32_t count);
    /* The same for the handler registered last on the device with this service. */
    bool (*deliverDeviceFrame)(uint32_t service, const void* contacts, int32_t count);
    /* Whether the device with this service is started and not stopped since. */
    bool (*isStarted)(uint32_t service);
    const FakeMultitouchLog* log;
} FakeMultitouchControls;

typedef const FakeMultitouchControls* (*FakeMultitouchControlsFunction)(void);

#ifdef __cplusplus
}
#endif

#endif
