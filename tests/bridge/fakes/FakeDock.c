#include <stdio.h>

#include "FakeDockControls.h"

static FakeDockState state;

int32_t CoreDockSendNotification(const void* notification, int32_t flags) {
    ++state.calls;
    snprintf(state.lastNotification, sizeof state.lastNotification, "%s",
             (const char*)notification);
    state.lastFlags = flags;
    return state.result;
}

FakeDockState* fakeDockState(void) {
    return &state;
}
