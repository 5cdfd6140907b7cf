#ifndef TACTORA_TESTS_FAKEDOCKCONTROLS_H
#define TACTORA_TESTS_FAKEDOCKCONTROLS_H

/*
 * The stand-in Dock library that the bridge's tests load in place of the system's. It exports
 * "CoreDockSendNotification", which takes a C string off Apple systems, and under the name
 * "FakeDockControls" a function that returns this state. Main thread only.
 */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct FakeDockState {
    int32_t result; /* what the next notification returns */
    int32_t calls;
    char lastNotification[64];
    int32_t lastFlags;
} FakeDockState;

typedef FakeDockState* (*FakeDockStateFunction)(void);

#ifdef __cplusplus
}
#endif

#endif
