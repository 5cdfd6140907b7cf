#ifndef TACTORA_TESTS_FAKEMULTITOUCHCONTROLS_H
#define TACTORA_TESTS_FAKEMULTITOUCHCONTROLS_H

/*
 * The stand-in multitouch framework that the bridge's tests load in place of the system's. It
 * exports the framework's six functions (a variant lacks one) and, under the name
 * "fakeMultitouchControls", a function that returns these controls. Main thread only.
 */

#include <stdbool.h>
#include <stdint.h>

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
    /* No devices, a device list, start result 0, a clean log. */
    void (*reset)(void);
    /* Appends a device with this service to the device list (at most 8). */
    void (*addDevice)(uint32_t service, bool isMouse);
    /* Whether MTDeviceCreateList returns a list or NULL. */
    void (*setListAvailable)(bool available);
    void (*setStartResult)(int32_t code);
    /* The mouse test for the bridge: true for the services of devices added as mice. */
    bool (*serviceIsMouse)(uint32_t service);
    /*
     * Calls the handler registered last, even after it was unregistered, the way a frame
     * already under way would arrive. False when no handler was ever registered.
     */
    bool (*deliverFrame)(const void* contacts, int32_t count);
    const FakeMultitouchLog* log;
} FakeMultitouchControls;

typedef const FakeMultitouchControls* (*FakeMultitouchControlsFunction)(void);

#ifdef __cplusplus
}
#endif

#endif
